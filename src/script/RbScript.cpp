#include "script/RbScript.h"

#include "script/CompileError.h"
#include "script/Parser.h"
#include "script/Program.h"

#include <algorithm>

namespace script {

class RbScript::Hooks : public RunHooks {
public:
    explicit Hooks(RbScript& script) : script_(script) {}
    void Print(const std::string& msg) override { script_.Event_Print(msg); }
    void RuntimeError(int line, const fw::RuntimeException& error) override
    {
        script_.Event_RuntimeError(line, error);
    }

private:
    RbScript& script_;
};

void RbScript::Run()
{
    if (!program_ || compiledContext_ != Context || compiledSource_ != Source) {
        program_.reset();
        auto program = std::make_shared<Program>();
        // Enough room for a short script in one go; long ones grow as usual.
        program->Reserve(std::min<std::size_t>(Source.size() / 2 + 8, 4096));
        Parser parser(Source, Context);
        if (const auto error = parser.Compile(*program)) {
            const int number = static_cast<int>(error->number);
            Event_CompilerError(error->line, number, std::string(CompileErrorText(number)));
            return;
        }
        program_ = std::move(program);
        compiledSource_ = Source;
        compiledContext_ = Context;
    }
    // Held here so that an event handler may Reset or change this object while it runs.
    const std::shared_ptr<const Program> program = program_;
    Hooks hooks(*this);
    program->Run(Context, hooks);
}

void RbScript::Reset()
{
    program_.reset();
    compiledSource_.clear();
    compiledContext_ = nullptr;
}

}  // namespace script
