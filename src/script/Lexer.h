#pragma once
// Splits script text into tokens on demand. Tokens point into the source, so the source must
// outlive the lexer; nothing is allocated per token.

#include <cstdint>
#include <string_view>

namespace script {

enum class TokenKind : std::uint8_t {
    End,
    Newline,
    Number,
    String,  // text holds the literal with its quotes and doubled inner quotes
    Name,
    Plus,
    Minus,
    Star,
    Slash,
    Caret,
    Ampersand,
    LParen,
    RParen,
    Comma,
    Equals,
    Invalid,  // a byte the language has no use for, or an unterminated string
};

struct Token {
    TokenKind kind = TokenKind::End;
    int line = 1;  // a Newline carries the line it ends
    std::string_view text;
    double number = 0.0;  // value of a Number
};

// Case-blind comparison of names, the one rule for keywords, variables and functions.
bool SameName(std::string_view a, std::string_view b);

class Lexer {
public:
    explicit Lexer(std::string_view source) : source_(source) {}

    Token Next();
    // Drops the rest of the current line (up to its line end), as after Rem.
    void SkipLine();

private:
    Token LexNumber(std::size_t start);
    Token LexString(std::size_t start);
    Token Make(TokenKind kind, std::size_t start, std::size_t end) const;

    std::string_view source_;
    std::size_t pos_ = 0;
    int line_ = 1;
};

}  // namespace script
