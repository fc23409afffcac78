#include "search/TermMatcher.h"

#include <algorithm>
#include <unordered_set>

#include "framework/Text.h"

TermMatcher::TermMatcher(std::string_view term) : folded_(fw::Lowercase(term)) {}

bool TermMatcher::TermIn(std::string_view foldedKey) const {
    return folded_.size() <= foldedKey.size() && foldedKey.find(folded_) != std::string_view::npos;
}

std::vector<bool> TermMatcher::AllWordsIn(const std::vector<std::string>& foldedKeys) const {
    std::vector<size_t> alive(foldedKeys.size());
    for (size_t i = 0; i < alive.size(); ++i) alive[i] = i;
    // Every word tried either drops a key or stands in all keys left, so few distinct words are
    // ever tried, and the set of them stays small.
    std::unordered_set<std::string_view> tried;
    const std::string_view text = folded_;
    for (size_t begin = 0; begin <= text.size() && !alive.empty();) {
        const size_t end = std::min(text.find(' ', begin), text.size());
        const std::string_view word = text.substr(begin, end - begin);
        begin = end + 1;
        // An empty word (two blanks in a row) stands in every key.
        if (word.empty() || !tried.insert(word).second) continue;
        std::erase_if(alive, [&](size_t i) {
            const std::string_view key = foldedKeys[i];
            return word.size() > key.size() || key.find(word) == std::string_view::npos;
        });
    }
    std::vector<bool> hits(foldedKeys.size(), false);
    for (size_t i : alive) hits[i] = true;
    return hits;
}
