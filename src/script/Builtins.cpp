#include "script/Builtins.h"

#include "script/Lexer.h"

#include <array>
#include <cmath>

namespace script {

namespace {

constexpr ValueType N = ValueType::Number;
constexpr ValueType S = ValueType::String;

// Overloaded library functions cannot be taken by address; these pick the double forms.
double Abs(double v) { return std::fabs(v); }
double Acos(double v) { return std::acos(v); }
double Asin(double v) { return std::asin(v); }
double Atan(double v) { return std::atan(v); }
double Ceil(double v) { return std::ceil(v); }
double Cos(double v) { return std::cos(v); }
double Exp(double v) { return std::exp(v); }
double Floor(double v) { return std::floor(v); }
double Log(double v) { return std::log(v); }
double Round(double v) { return std::round(v); }  // halves away from zero
double Sin(double v) { return std::sin(v); }
double Sqrt(double v) { return std::sqrt(v); }
double Tan(double v) { return std::tan(v); }
double Atan2(double y, double x) { return std::atan2(y, x); }
double Pow(double x, double y) { return std::pow(x, y); }
double Max(double a, double b) { return std::fmax(a, b); }
double Min(double a, double b) { return std::fmin(a, b); }

const std::array kBuiltins = {
    Builtin{"Abs", N, 1, 1, {N, N}, Op::CallNumber1, Abs},
    Builtin{"Acos", N, 1, 1, {N, N}, Op::CallNumber1, Acos},
    Builtin{"Asin", N, 1, 1, {N, N}, Op::CallNumber1, Asin},
    Builtin{"Atan", N, 1, 1, {N, N}, Op::CallNumber1, Atan},
    Builtin{"Ceil", N, 1, 1, {N, N}, Op::CallNumber1, Ceil},
    Builtin{"Cos", N, 1, 1, {N, N}, Op::CallNumber1, Cos},
    Builtin{"Exp", N, 1, 1, {N, N}, Op::CallNumber1, Exp},
    Builtin{"Floor", N, 1, 1, {N, N}, Op::CallNumber1, Floor},
    Builtin{"Log", N, 1, 1, {N, N}, Op::CallNumber1, Log},
    Builtin{"Round", N, 1, 1, {N, N}, Op::CallNumber1, Round},
    Builtin{"Sin", N, 1, 1, {N, N}, Op::CallNumber1, Sin},
    Builtin{"Sqrt", N, 1, 1, {N, N}, Op::CallNumber1, Sqrt},
    Builtin{"Tan", N, 1, 1, {N, N}, Op::CallNumber1, Tan},
    Builtin{"Atan2", N, 2, 2, {N, N}, Op::CallNumber2, nullptr, Atan2},
    Builtin{"Pow", N, 2, 2, {N, N}, Op::CallNumber2, nullptr, Pow},
    Builtin{"Max", N, 2, 2, {N, N}, Op::CallNumber2, nullptr, Max},
    Builtin{"Min", N, 2, 2, {N, N}, Op::CallNumber2, nullptr, Min},
    Builtin{"Str", S, 1, 1, {N, N}, Op::StrOf},
    Builtin{"Format", S, 2, 2, {N, S}, Op::FormatOf},
    Builtin{"Val", N, 1, 1, {S, S}, Op::ValOf},
};

}  // namespace

const Builtin* FindBuiltin(std::string_view name)
{
    for (const Builtin& builtin : kBuiltins) {
        if (SameName(builtin.name, name))
            return &builtin;
    }
    return nullptr;
}

}  // namespace script
