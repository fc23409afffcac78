#pragma once
// Compiler errors stay data (a number and a line) until the edge turns the number into text.

#include <string_view>

namespace script {

// The engine's error numbers; the values are fixed by the language and logged by the host.
enum class ErrorNumber : int {
    Syntax = 1,
    TypeMismatch = 2,
    StackOverflow = 5,
    TooManyParameters = 6,
    NotEnoughParameters = 7,
    WrongParameterCount = 8,
    IncompatibleParameters = 9,
    IncompatibleAssignment = 10,
    UndefinedIdentifier = 11,
    UndefinedOperator = 12,
    NotAFunction = 15,
    DuplicateIdentifier = 22,
    IgnoredResult = 31,
};

struct CompileError {
    ErrorNumber number;
    int line;  // 1-based line of the source where the error was found
};

// The text for an error number; "unknown error" for any number the language does not define.
std::string_view CompileErrorText(int number);

}  // namespace script
