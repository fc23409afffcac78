// Numbers in and out of text: Val reads the longest number at the start, Str and Format write
// the calculator's forms, Hex, Oct and Bin the 32-bit patterns.

#include "framework/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace fw {

namespace {

std::string TrimmedExponent(int exponent) {
    return std::string(exponent < 0 ? "-" : "+") + std::to_string(exponent < 0 ? -exponent : exponent);
}

std::string NonFinite(double value) {
    if (std::isnan(value)) return "NaN";
    return value < 0 ? "-INF" : "INF";
}

std::string InBase(std::int64_t value, unsigned base) {
    std::uint32_t bits = static_cast<std::uint32_t>(value);
    if (bits == 0) return "0";
    std::string digits;
    while (bits) {
        digits.insert(digits.begin(), "0123456789ABCDEF"[bits % base]);
        bits /= base;
    }
    return digits;
}

}  // namespace

double Val(std::string_view s) {
    size_t i = 0;
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t')) ++i;
    if (i + 1 < s.size() && s[i] == '&') {
        const char kind = static_cast<char>(s[i + 1] | 0x20);
        const int base = kind == 'h' ? 16 : kind == 'o' ? 8 : kind == 'b' ? 2 : 0;
        if (base) {
            double value = 0;
            for (i += 2; i < s.size(); ++i) {
                const char c = static_cast<char>(s[i] | 0x20);
                const int digit = c >= '0' && c <= '9' ? c - '0' : c >= 'a' && c <= 'f' ? c - 'a' + 10 : 99;
                if (digit >= base) break;
                value = value * base + digit;
            }
            return value;
        }
    }
    // Only the characters of a number go to strtod, so that nothing behind it is read.
    std::string number;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) number += s[i++];
    size_t digits = 0;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') number += s[i++], ++digits;
    if (i < s.size() && s[i] == '.') {
        number += s[i++];
        while (i < s.size() && s[i] >= '0' && s[i] <= '9') number += s[i++], ++digits;
    }
    if (digits == 0) return 0;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
        if (j < s.size() && s[j] >= '0' && s[j] <= '9') {
            number.append(s.substr(i, j - i));
            while (j < s.size() && s[j] >= '0' && s[j] <= '9') number += s[j++];
        }
    }
    return std::strtod(number.c_str(), nullptr);
}

std::string Str(double value) {
    if (!std::isfinite(value)) return NonFinite(value);
    if (value == 0) return "0";
    // to_chars formats as printf does, without its locale and stream machinery.
    char text[400];
    char* end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, 6).ptr;
    *end = '\0';  // to_chars does not end the text, and atoi reads on until it ends
    const char* e = std::find(text, end, 'e');
    const int exponent = std::atoi(e + 1);
    if (exponent < -5 || exponent >= 7) return std::string(text, static_cast<size_t>(e - text)) + "e" + TrimmedExponent(exponent);
    end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 6 - exponent).ptr;
    std::string fixed(text, end);
    if (fixed.find('.') != std::string::npos) {
        while (fixed.back() == '0') fixed.pop_back();
        if (fixed.back() == '.') fixed.pop_back();
    }
    return fixed == "-0" ? "0" : fixed;
}

std::string Str(std::int64_t value) { return std::to_string(value); }

std::string Format(double value, std::string_view mask) {
    if (!std::isfinite(value)) return NonFinite(value);
    if (mask.empty()) return Str(value);
    // Split the mask into integer digits, fraction digits and an exponent part.
    const size_t point = mask.find('.');
    size_t exponentAt = std::string_view::npos;
    for (size_t i = 0; i + 1 < mask.size(); ++i)
        if ((mask[i] == 'e' || mask[i] == 'E') && (mask[i + 1] == '+' || mask[i + 1] == '-')) {
            exponentAt = i;
            break;
        }
    const std::string_view body = mask.substr(0, exponentAt);
    const std::string_view integerPart = body.substr(0, point == std::string_view::npos ? body.size() : point);
    const std::string_view fractionPart =
        point == std::string_view::npos || point > body.size() ? std::string_view() : body.substr(point + 1);
    int minFraction = 0, maxFraction = 0, minInteger = 0;
    for (char c : fractionPart) {
        if (c == '0') ++minFraction, ++maxFraction;
        else if (c == '#') ++maxFraction;
    }
    for (char c : integerPart) minInteger += c == '0';
    const bool grouping = integerPart.find(',') != std::string_view::npos;
    std::string prefix, suffix;
    for (char c : integerPart)
        if (c != '0' && c != '#' && c != ',') prefix += c;

    int exponent = 0;
    const double magnitude = std::fabs(value);
    std::string integer, fraction;
    if (exponentAt != std::string_view::npos) {
        // to_chars rounds the decimal digits exactly, subnormals and values just below a power
        // of ten included, and carries 9.99... into the exponent itself.
        std::string text(static_cast<size_t>(maxFraction) + 16, '\0');
        const std::to_chars_result written = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                                           std::chars_format::scientific, maxFraction);
        text.resize(static_cast<size_t>(written.ptr - text.data()));
        const size_t e = text.find('e');
        exponent = std::stoi(text.substr(e + 1));
        integer = text.substr(0, 1);
        if (maxFraction > 0) fraction = text.substr(2, e - 2);
    } else {
        char text[512];
        std::snprintf(text, sizeof text, "%.*f", maxFraction, magnitude);
        const std::string digits = text;
        integer = digits.substr(0, digits.find('.'));
        if (digits.find('.') != std::string::npos) fraction = digits.substr(digits.find('.') + 1);
    }
    while (static_cast<int>(fraction.size()) > minFraction && !fraction.empty() && fraction.back() == '0') fraction.pop_back();
    if (integer == "0" && minInteger == 0) integer.clear();
    while (static_cast<int>(integer.size()) < minInteger) integer.insert(integer.begin(), '0');
    if (grouping)
        for (int at = static_cast<int>(integer.size()) - 3; at > 0; at -= 3) integer.insert(static_cast<size_t>(at), ",");
    std::string result = integer;
    if (!fraction.empty()) result += "." + fraction;
    if (result.empty()) result = "0";
    if (exponentAt != std::string_view::npos) {
        const bool alwaysSign = mask[exponentAt + 1] == '+';
        result += mask[exponentAt];
        if (exponent < 0) result += '-';
        else if (alwaysSign) result += '+';
        result += std::to_string(exponent < 0 ? -exponent : exponent);
    }
    const bool negative = value < 0 && result.find_first_of("123456789") != std::string::npos;
    if (prefix.find('-') != std::string::npos) prefix.erase(prefix.find('-'), 1);
    return (negative ? "-" : "") + prefix + result + suffix;
}

std::string Hex(std::int64_t value) { return InBase(value, 16); }
std::string Oct(std::int64_t value) { return InBase(value, 8); }
std::string Bin(std::int64_t value) { return InBase(value, 2); }

}  // namespace fw
