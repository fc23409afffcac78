// libFuzzer entry: the input as the expression of the calculator's script and as a whole script.
// Beyond crashes it checks what the events promise, and aborts when a promise is broken.

#include "framework/Exceptions.h"
#include "framework/Text.h"
#include "script/CompileError.h"
#include "script/RbScript.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

class FuzzContext : public script::ScriptContext {
public:
    int FindFunction(std::string_view name) const override
    {
        if (fw::StrEq(name, "ln"))
            return 0;
        if (fw::StrEq(name, "fail"))
            return 1;
        return -1;
    }
    double CallFunction(int id, double argument) override
    {
        if (id == 1 && argument > 0)
            throw fw::RuntimeException("fail");
        return std::log(argument);
    }
};

class FuzzScript : public script::RbScript {
public:
    int compilerErrors = 0;
    int runtimeErrors = 0;
    int prints = 0;
    int lastLine = 0;  // highest line the source can have

protected:
    void Event_Print(const std::string&) override { ++prints; }
    void Event_RuntimeError(int line, const fw::RuntimeException&) override
    {
        if (line < 1 || line > lastLine || runtimeErrors > 0)
            std::abort();
        ++runtimeErrors;
    }
    void Event_CompilerError(int line, int number, const std::string& message) override
    {
        if (line < 1 || line > lastLine || message != script::CompileErrorText(number) ||
            message == "unknown error")
            std::abort();
        ++compilerErrors;
    }
};

void RunOnce(const std::string& source, FuzzContext& context)
{
    FuzzScript script;
    script.Context = &context;
    script.Source = source;
    script.lastLine = 1;
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (source[i] == '\n' || (source[i] == '\r' && (i + 1 == source.size() || source[i + 1] != '\n')))
            ++script.lastLine;
    }
    script.Run();
    if (script.compilerErrors > 1 || (script.compilerErrors == 1 && (script.prints || script.runtimeErrors)))
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size);
    FuzzContext context;
    RunOnce("Dim x As double\nx = 1.0*" + input + "\nprint Str(x)", context);
    RunOnce(input, context);
    return 0;
}
