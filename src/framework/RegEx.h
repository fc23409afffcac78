#pragma once
// Regular expressions (PCRE2), letter case ignored by default. Search without a target goes on
// in the text of the last search with a target, behind the last match.

#include <memory>
#include <string>
#include <vector>

namespace fw {

class RegExMatch {
public:
    RegExMatch(std::vector<std::string> groups, int byteOffset)
        : groups_(std::move(groups)), byteOffset_(byteOffset) {}
    // Group 0 is the whole match; "" for a group that did not take part.
    std::string SubExpressionString(int index) const;
    int SubExpressionCount() const { return static_cast<int>(groups_.size()); }
    int SubExpressionStartB(int index) const { return index == 0 ? byteOffset_ : -1; }

private:
    std::vector<std::string> groups_;
    int byteOffset_;
};

class RegEx {
public:
    RegEx();
    ~RegEx();
    RegEx(const RegEx&) = delete;
    RegEx& operator=(const RegEx&) = delete;

    std::string SearchPattern;
    std::string ReplacementPattern;
    bool CaseSensitive = false;

    // The first match in `target`, or none (nullptr).
    std::unique_ptr<RegExMatch> Search(const std::string& target);
    // The next match in the text of the last Search with a target.
    std::unique_ptr<RegExMatch> Search();
    // `text` with its first match replaced by ReplacementPattern ("\1" or "$1" insert groups).
    std::string Replace(const std::string& text);

private:
    struct Compiled;
    Compiled& Compile();
    std::unique_ptr<RegExMatch> MatchAt(size_t offset);
    std::unique_ptr<Compiled> compiled_;
    std::string target_;
    size_t nextOffset_ = 0;
};

}  // namespace fw
