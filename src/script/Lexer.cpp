#include "script/Lexer.h"

#include "framework/Text.h"

#include <charconv>
#include <limits>

namespace script {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsNameStart(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
bool IsNameChar(char c) { return IsNameStart(c) || IsDigit(c); }

// from_chars leaves the value alone when a literal is beyond the double range; like strtod the
// language takes infinity for a huge one and 0 for a tiny one. The decimal exponent of the first
// significant digit tells which (strtod itself would read the locale's decimal point).
double OutOfRangeValue(std::string_view literal)
{
    long long scale = 0;
    bool seenPoint = false, significant = false;
    std::size_t i = 0;
    for (; i < literal.size() && literal[i] != 'e' && literal[i] != 'E'; ++i) {
        if (literal[i] == '.') {
            seenPoint = true;
        } else if (!significant && literal[i] == '0') {
            if (seenPoint)
                --scale;
        } else {
            significant = true;
            if (!seenPoint)
                ++scale;
        }
    }
    if (!significant)
        return 0.0;
    long long exponent = 0;
    bool negative = false;
    if (i < literal.size()) {
        ++i;
        if (i < literal.size() && (literal[i] == '+' || literal[i] == '-'))
            negative = literal[i++] == '-';
        for (; i < literal.size() && exponent < 100000000; ++i)
            exponent = exponent * 10 + (literal[i] - '0');
    }
    scale += negative ? -exponent : exponent;
    return scale > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

bool SameName(std::string_view a, std::string_view b)
{
    // Folding keeps the length and never changes a first byte beyond its 0x20 bit (ASCII
    // letters; Latin-1 letters share their UTF-8 lead byte), so the cheap tests go first.
    if (a.size() != b.size())
        return false;
    if (a.empty())
        return true;
    return (a[0] | 0x20) == (b[0] | 0x20) && fw::StrEq(a, b);
}

Token Lexer::Make(TokenKind kind, std::size_t start, std::size_t end) const
{
    Token token;
    token.kind = kind;
    token.line = line_;
    token.text = source_.substr(start, end - start);
    return token;
}

void Lexer::SkipLine()
{
    while (pos_ < source_.size() && source_[pos_] != '\n' && source_[pos_] != '\r')
        ++pos_;
}

Token Lexer::Next()
{
    const std::size_t n = source_.size();
    for (;;) {
        while (pos_ < n && (source_[pos_] == ' ' || source_[pos_] == '\t'))
            ++pos_;
        if (pos_ >= n)
            return Make(TokenKind::End, n, n);
        const char c = source_[pos_];
        // ' and // start a comment that runs to the line end.
        if (c == '\'' || (c == '/' && pos_ + 1 < n && source_[pos_ + 1] == '/')) {
            SkipLine();
            continue;
        }
        const std::size_t start = pos_;
        if (c == '\n' || c == '\r') {
            pos_ += (c == '\r' && pos_ + 1 < n && source_[pos_ + 1] == '\n') ? 2 : 1;
            Token token = Make(TokenKind::Newline, start, pos_);
            ++line_;
            return token;
        }
        if (IsDigit(c) || (c == '.' && pos_ + 1 < n && IsDigit(source_[pos_ + 1])))
            return LexNumber(start);
        if (IsNameStart(c)) {
            while (pos_ < n && IsNameChar(source_[pos_]))
                ++pos_;
            return Make(TokenKind::Name, start, pos_);
        }
        if (c == '"')
            return LexString(start);
        ++pos_;
        switch (c) {
        case '+': return Make(TokenKind::Plus, start, pos_);
        case '-': return Make(TokenKind::Minus, start, pos_);
        case '*': return Make(TokenKind::Star, start, pos_);
        case '/': return Make(TokenKind::Slash, start, pos_);
        case '^': return Make(TokenKind::Caret, start, pos_);
        case '&': return Make(TokenKind::Ampersand, start, pos_);
        case '(': return Make(TokenKind::LParen, start, pos_);
        case ')': return Make(TokenKind::RParen, start, pos_);
        case ',': return Make(TokenKind::Comma, start, pos_);
        case '=': return Make(TokenKind::Equals, start, pos_);
        default: return Make(TokenKind::Invalid, start, pos_);
        }
    }
}

Token Lexer::LexNumber(std::size_t start)
{
    const std::size_t n = source_.size();
    while (pos_ < n && IsDigit(source_[pos_]))
        ++pos_;
    if (pos_ < n && source_[pos_] == '.') {
        ++pos_;
        while (pos_ < n && IsDigit(source_[pos_]))
            ++pos_;
    }
    // An exponent counts only with digits; otherwise the "e" starts the next token.
    if (pos_ < n && (source_[pos_] == 'e' || source_[pos_] == 'E')) {
        std::size_t p = pos_ + 1;
        if (p < n && (source_[p] == '+' || source_[p] == '-'))
            ++p;
        if (p < n && IsDigit(source_[p])) {
            while (p < n && IsDigit(source_[p]))
                ++p;
            pos_ = p;
        }
    }
    Token token = Make(TokenKind::Number, start, pos_);
    // Converting a long literal takes the slow exact path, and one of them, pi written out,
    // stands in nearly every program: the last one is remembered.
    constexpr std::size_t kLong = 19;
    static thread_local std::string lastLong;
    static thread_local double lastLongValue = 0;
    if (token.text.size() > kLong && token.text == lastLong) {
        token.number = lastLongValue;
        return token;
    }
    const char* first = token.text.data();
    const char* last = first + token.text.size();
    const auto [ptr, ec] = std::from_chars(first, last, token.number);
    if (ec != std::errc() || ptr != last)
        token.number = OutOfRangeValue(token.text);
    if (token.text.size() > kLong) {
        lastLong = token.text;
        lastLongValue = token.number;
    }
    return token;
}

Token Lexer::LexString(std::size_t start)
{
    const std::size_t n = source_.size();
    ++pos_;
    for (;;) {
        if (pos_ >= n || source_[pos_] == '\n' || source_[pos_] == '\r')
            return Make(TokenKind::Invalid, start, pos_);
        if (source_[pos_] == '"') {
            ++pos_;
            if (pos_ < n && source_[pos_] == '"') {
                ++pos_;
                continue;
            }
            return Make(TokenKind::String, start, pos_);
        }
        ++pos_;
    }
}

}  // namespace script
