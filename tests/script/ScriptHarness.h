#pragma once
// A script object that records its events, and a host context for the tests of the engine.

#include "framework/Exceptions.h"
#include "framework/Text.h"
#include "script/RbScript.h"

#include <string>
#include <vector>

namespace script::test {

// Offers probe(v), which records v exactly and returns it, ln(v), and fail(v), which throws.
class TestContext : public ScriptContext {
public:
    std::vector<double> probed;

    int FindFunction(std::string_view name) const override
    {
        if (fw::StrEq(name, "probe"))
            return 0;
        if (fw::StrEq(name, "ln"))
            return 1;
        if (fw::StrEq(name, "fail"))
            return 2;
        return -1;
    }
    double CallFunction(int id, double argument) override;
};

class RecordingScript : public RbScript {
public:
    struct CompilerError {
        int line, number;
        std::string message;
    };
    std::vector<std::string> prints;
    std::vector<CompilerError> compilerErrors;
    std::vector<int> runtimeErrorLines;

protected:
    void Event_Print(const std::string& msg) override { prints.push_back(msg); }
    void Event_RuntimeError(int line, const fw::RuntimeException&) override
    {
        runtimeErrorLines.push_back(line);
    }
    void Event_CompilerError(int line, int errorNumber, const std::string& errorMsg) override
    {
        compilerErrors.push_back({line, errorNumber, errorMsg});
    }
};

// The script the calculator generates for an expression in Normal mode.
inline std::string CalculatorScript(const std::string& expression)
{
    return "Dim x As double\nx = 1.0*" + expression + "\nprint Str(x)";
}

}  // namespace script::test
