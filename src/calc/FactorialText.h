#pragma once
// The working text of the factorial step, cut where a factorial can match. A match is digits
// and "!", so it lies inside one run of digits and marks, and replacing it everywhere changes
// only such runs: each replacement then costs the runs that can still match, not the whole
// text, however long the text and however many marks it holds.

#include <string>
#include <string_view>
#include <vector>

class FactorialText {
public:
    explicit FactorialText(std::string_view text);

    // The same as ReplaceAll on the whole text, for a `match` of digits and a closing "!".
    void ReplaceAll(std::string_view match, std::string_view replacement);
    // Whether a later replacement can still change anything.
    bool CanMatch() const { return !live_.empty(); }
    std::string Text() const;

private:
    std::vector<std::string> pieces_;  // the other text and the runs, in order
    std::vector<size_t> live_;         // runs with a "!" right behind a digit
};
