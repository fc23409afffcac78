#pragma once
// What a search asks of an entry's key: the whole term in it, or, in Smart mode, every word of
// the term in it, as part of a word, case ignored. The words are tried against all keys at
// once, each distinct word once, and the trial ends when no key is left: so a huge term costs
// one pass at most, and mostly a few words.

#include <string>
#include <string_view>
#include <vector>

class TermMatcher {
public:
    explicit TermMatcher(std::string_view term);

    // `foldedKey` is fw::Lowercase of the key.
    bool TermIn(std::string_view foldedKey) const;
    // For each folded key, whether every word of the term stands in it.
    std::vector<bool> AllWordsIn(const std::vector<std::string>& foldedKeys) const;

private:
    std::string folded_;
};
