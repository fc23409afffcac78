#pragma once
// Text operations the logic is written against. Text is UTF-8; positions and lengths count
// characters, comparisons and searches ignore letter case (ASCII and Latin-1), and invalid
// UTF-8 is carried through byte by byte without ever failing.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fw {

// The platform line end, added to strings as a string.
inline const std::string EndOfLine = "\n";

// Case-blind equality: the `=` of the logic on strings. Never compare user-visible texts with ==.
bool StrEq(std::string_view a, std::string_view b);

// 1-based character position of the first case-blind match of `find`, 0 if none.
// A start of 0 or 1 means the beginning. An empty `find` matches at `start` (at least 1).
int InStr(std::string_view source, std::string_view find);
int InStr(int start, std::string_view source, std::string_view find);

// Fields are counted from 1; empty fields count; beyond the last field gives "".
std::string NthField(std::string_view source, std::string_view separator, int n);
// Number of separators plus 1 (an empty source gives 1).
int CountFields(std::string_view source, std::string_view separator);
// All fields from index 0, empty ones included; an empty source gives an empty array.
std::vector<std::string> Split(std::string_view source, std::string_view separator);

// Every case-blind match from the left is replaced; replaced text is not scanned again.
std::string ReplaceAll(std::string_view source, std::string_view oldText, std::string_view newText);
// The same for a text given away: when nothing matches it comes back without a copy, which
// chains of rewrites over one text rely on to stay cheap.
std::string ReplaceAll(std::string&& source, std::string_view oldText, std::string_view newText);

std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);
std::string Trim(std::string_view s);
// The fold that every case-blind comparison uses, so InStr(a, b) is non-zero exactly when
// Lowercase(b) stands in Lowercase(a). It keeps the byte length.
std::string Lowercase(std::string_view s);
std::string Uppercase(std::string_view s);
// The first n characters (n <= 0 gives "").
std::string Left(std::string_view s, int n);
// The last n characters.
std::string Right(std::string_view s, int n);
// Characters from 1-based position start, n of them (n < 0: to the end).
std::string Mid(std::string_view s, int start, int n = -1);
// Number of characters.
int Len(std::string_view s);

// The longest number at the start (leading blanks skipped): sign, digits, fraction and exponent;
// "&h", "&o", "&b" read hexadecimal, octal and binary integers. Never fails; no number gives 0.
double Val(std::string_view s);

// At most 7 significant digits: 120, 3.5, 1000000, 1.234568e+7.
std::string Str(double value);
std::string Str(std::int64_t value);
inline std::string Str(int value) { return Str(static_cast<std::int64_t>(value)); }

// Number formatting by mask: 0 a digit always shown, # a digit shown when not zero, . the point,
// , grouping, e+ / e- / E+ / E- an exponent (sign always shown with +), other characters literal.
std::string Format(double value, std::string_view mask);

// Digits of a 32-bit integer in that base, no prefix; negative numbers in two's complement.
std::string Hex(std::int64_t value);
std::string Oct(std::int64_t value);
std::string Bin(std::int64_t value);

// A one-character text of that code point, encoded in UTF-8 (Chr(9) is the tab).
std::string Chr(int codePoint);
// Encodings.UTF8.Chr: the same, spelled as the logic spells it.
std::string UTF8Chr(int codePoint);

// Every kind of line end (CR LF, CR, LF) becomes `lineEnd`.
std::string ReplaceLineEndings(std::string_view text, std::string_view lineEnd);

}  // namespace fw
