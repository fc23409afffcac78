#include "script/CompileError.h"

#include <array>

namespace script {

namespace {

// Indexed by error number; empty entries (0, 36 to 39) are numbers the language leaves undefined.
constexpr std::array<std::string_view, 43> kTexts = {
    "",
    "Syntax does not make sense.",
    "Type mismatch.",
    "Select Case does not support that type of expression.",
    "The compiler is not implemented (obsolete).",
    "The parser's internal stack has overflowed.",
    "Too many parameters for this function.",
    "Not enough parameters for this function call.",
    "Wrong number of parameters for this function call.",
    "Parameters are incompatible with this function.",
    "Assignment of an incompatible data type.",
    "Undefined identifier.",
    "Undefined operator.",
    "Logic operations require Boolean operands.",
    "Array bounds must be integers.",
    "Can't call a non-function.",
    "Can't get an element from something that isn't an array.",
    "Not enough subscripts for this array's dimensions.",
    "Too many subscripts for this array's dimensions.",
    "Can't assign an entire array.",
    "Can't use an entire array in an expression.",
    "Can't pass an expression as a ByRef parameter.",
    "Duplicate identifier.",
    "The backend code generator failed.",
    "Ambiguous call to overloaded method.",
    "Multiple inheritance is not allowed.",
    "Cannot create an instance of an interface.",
    "Cannot implement a class as though it were an interface.",
    "Cannot inherit from something that is not a class.",
    "This class does not fully implement the specified interface.",
    "Event handlers cannot live outside of a class.",
    "It is not legal to ignore the result of a function call.",
    "Can't use 'Self' keyword outside of a class.",
    "Can't use 'Me' keyword outside of a class.",
    "Can't return a value from a Sub.",
    "An exception object required here.",
    "",
    "",
    "",
    "",
    "Destructors can't have parameters.",
    "Can't use 'Super' keyword outside of a class.",
    "Can't use 'Super' keyword in a class that has no parent.",
};

}  // namespace

std::string_view CompileErrorText(int number)
{
    if (number > 0 && number < static_cast<int>(kTexts.size()) && !kTexts[number].empty())
        return kTexts[number];
    return "unknown error";
}

}  // namespace script
