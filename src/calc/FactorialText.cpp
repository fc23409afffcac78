#include "calc/FactorialText.h"

#include <algorithm>

#include "framework/Text.h"

namespace {
bool InRun(char c) { return (c >= '0' && c <= '9') || c == '!'; }

// A run can match only where a digit stands right before a mark; the text around a run never
// changes, so a run without such a place never will.
bool Live(std::string_view run) {
    for (size_t at = run.find('!'); at != std::string_view::npos; at = run.find('!', at + 1))
        if (at > 0 && run[at - 1] >= '0' && run[at - 1] <= '9') return true;
    return false;
}
}  // namespace

FactorialText::FactorialText(std::string_view text) {
    bool lastFixed = false;
    for (size_t begin = 0, end = 0; begin < text.size(); begin = end) {
        const bool run = InRun(text[begin]);
        while (end < text.size() && InRun(text[end]) == run) ++end;
        const std::string_view piece = text.substr(begin, end - begin);
        const bool live = run && Live(piece);
        // Text that can never change is kept together; each live run stands alone.
        if (!live && lastFixed) {
            pieces_.back() += piece;
        } else {
            if (live) live_.push_back(pieces_.size());
            pieces_.emplace_back(piece);
        }
        lastFixed = !live;
    }
}

void FactorialText::ReplaceAll(std::string_view match, std::string_view replacement) {
    std::erase_if(live_, [&](size_t index) {
        std::string& run = pieces_[index];
        if (run.size() >= match.size()) run = fw::ReplaceAll(std::move(run), match, replacement);
        return !Live(run);
    });
}

std::string FactorialText::Text() const {
    size_t size = 0;
    for (const std::string& piece : pieces_) size += piece.size();
    std::string text;
    text.reserve(size);
    for (const std::string& piece : pieces_) text += piece;
    return text;
}
