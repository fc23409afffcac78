#pragma once
// How the built-in texts are kept: runs of paragraphs joined by ends of line.

#include <span>
#include <string>

#include "framework/Text.h"

namespace helptext {

// Each paragraph is followed by one end of line unless it says otherwise.
enum class After { Line, BlankLine, Nothing };
struct Paragraph {
    const char* text;
    After after = After::Line;
};

inline std::string Join(std::span<const Paragraph> paragraphs) {
    std::string text;
    for (const Paragraph& p : paragraphs) {
        text += p.text;
        if (p.after != After::Nothing) text += fw::EndOfLine;
        if (p.after == After::BlankLine) text += fw::EndOfLine;
    }
    return text;
}

}  // namespace helptext
