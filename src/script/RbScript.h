#pragma once
// The embedded script engine as the host sees it: set Source (and Context), call Run, and
// receive the script's output and failures through the three events.

#include "framework/Exceptions.h"
#include "script/ScriptContext.h"

#include <memory>
#include <string>

namespace script {

class Program;

class RbScript {
public:
    virtual ~RbScript() = default;

    // The program text; lines end in "\n", "\r\n" or "\r".
    std::string Source;
    // Offers the host's functions to the script; may be null.
    ScriptContext* Context = nullptr;

    // Compiles Source unless it was compiled unchanged (same Source and Context) since the last
    // Reset, then runs it. Events fire inside: a compiler error stops before anything runs.
    void Run();
    // Drops the compiled form.
    void Reset();

protected:
    virtual void Event_Print(const std::string& /*msg*/) {}
    virtual void Event_RuntimeError(int /*line*/, const fw::RuntimeException& /*error*/) {}
    virtual void Event_CompilerError(int /*line*/, int /*errorNumber*/,
                                     const std::string& /*errorMsg*/)
    {
    }

private:
    class Hooks;

    std::shared_ptr<const Program> program_;
    std::string compiledSource_;
    const ScriptContext* compiledContext_ = nullptr;
};

}  // namespace script
