#pragma once
// The functions every script knows, found by case-blind name.

#include "script/Program.h"

#include <string_view>

namespace script {

struct Builtin {
    std::string_view name;
    ValueType result;
    int minArgs;
    int maxArgs;
    ValueType params[2];
    Op op;  // CallNumber1, CallNumber2, StrOf, FormatOf or ValOf
    NumberFunction1 fn1 = nullptr;
    NumberFunction2 fn2 = nullptr;
};

// nullptr when no built-in function has that name.
const Builtin* FindBuiltin(std::string_view name);

}  // namespace script
