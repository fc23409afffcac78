#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "framework/Text.h"

namespace {
const char* const kScientific = "0.0#############e+##";

// printf's correctly rounded 15 digits, in the mask's shape: trailing zeros dropped down to one
// fraction digit, the exponent's sign always shown and no leading zeros.
std::string Reference(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.14e", value);
    const std::string printed = text;
    const size_t e = printed.find('e');
    std::string mantissa = printed.substr(0, e);
    while (mantissa.back() == '0' && mantissa[mantissa.size() - 2] != '.') mantissa.pop_back();
    const int exponent = std::atoi(printed.c_str() + e + 1);
    return mantissa + (exponent < 0 ? "e-" : "e+") + std::to_string(std::abs(exponent));
}

struct Shape {
    double value;
    const char* text;
};

const Shape kShapes[] = {
    {200, "2.0e+2"},
    {1, "1.0e+0"},
    {-1.5, "-1.5e+0"},
    {0, "0.0e+0"},
    {-0.0, "0.0e+0"},
    {0.1, "1.0e-1"},
    {5.0 / 11, "4.54545454545455e-1"},
    {123456789012345678.0, "1.23456789012346e+17"},
    // Just below a power of ten: the digits stay below it, or carry into the exponent.
    {999999.999999999, "9.99999999999999e+5"},
    {9.99999999999994e39, "9.99999999999994e+39"},
    {-9.99999999999994e39, "-9.99999999999994e+39"},
    {0.99999999999999989, "1.0e+0"},
    {DBL_MAX, "1.79769313486232e+308"},
    {DBL_MIN, "2.2250738585072e-308"},
    {1e-320, "9.99988867182683e-321"},
    {std::numeric_limits<double>::denorm_min(), "4.94065645841247e-324"},
    {-std::numeric_limits<double>::denorm_min(), "-4.94065645841247e-324"},
};
}  // namespace

TEST(Format, ScientificMaskShapes) {
    for (const Shape& c : kShapes) EXPECT_EQ(fw::Format(c.value, kScientific), c.text) << c.value;
}

TEST(Format, ScientificMaskRoundsEveryDoubleCorrectly) {
    std::vector<double> values = {DBL_MIN, DBL_MAX, std::numeric_limits<double>::denorm_min()};
    for (int exponent = -324; exponent <= 308; ++exponent) {
        const double power = std::strtod(("1e" + std::to_string(exponent)).c_str(), nullptr);
        values.insert(values.end(), {power, std::nextafter(power, 0.0), std::nextafter(power, DBL_MAX)});
    }
    for (const double boundary : std::vector<double>(values)) {
        values.push_back(-boundary);
        values.push_back(std::nextafter(boundary, 0.0));
        values.push_back(std::nextafter(boundary, DBL_MAX));
    }
    std::mt19937_64 bits(14);
    while (values.size() < 2'000'000) {
        const std::uint64_t pattern = bits();
        double value;
        std::memcpy(&value, &pattern, sizeof value);
        if (std::isfinite(value)) values.push_back(value);
    }
    int wrong = 0;
    for (const double value : values) {
        if (value == 0) continue;  // printf keeps the sign of -0, the mask does not
        const std::string text = fw::Format(value, kScientific);
        if (text != Reference(value) && ++wrong <= 10) ADD_FAILURE() << text << " for " << Reference(value);
    }
    EXPECT_EQ(wrong, 0);
}
