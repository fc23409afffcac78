#pragma once
// The compiled form: a flat list of instructions for a machine with one stack of doubles and one
// of strings. A script has no jumps, so every instruction runs at most once.

#include "framework/Exceptions.h"

#include <cstdint>
#include <string>
#include <vector>

namespace script {

class ScriptContext;

enum class ValueType : std::uint8_t { Number, String };

enum class Op : std::uint8_t {
    Line,         // arg: the source line of the statement that follows
    PushNumber,   // number
    PushString,   // arg: index of a string constant
    LoadNumber,   // arg: variable slot
    StoreNumber,  // arg: variable slot
    LoadString,   // arg: variable slot
    StoreString,  // arg: variable slot
    Negate,
    Add,
    Subtract,
    Multiply,
    Divide,
    Power,
    Concat,
    CallNumber1,  // fn1
    CallNumber2,  // fn2
    CallHost,     // arg: the host's function id
    StrOf,
    FormatOf,
    ValOf,
    Print,
};

using NumberFunction1 = double (*)(double);
using NumberFunction2 = double (*)(double, double);

struct Instruction {
    Op op;
    std::int32_t arg = 0;
    union {
        double number = 0.0;
        NumberFunction1 fn1;
        NumberFunction2 fn2;
    };
};

// What a running program reports to its owner.
class RunHooks {
public:
    virtual ~RunHooks() = default;
    virtual void Print(const std::string& msg) = 0;
    virtual void RuntimeError(int line, const fw::RuntimeException& error) = 0;
};

class Program {
public:
    // Bytes of string a run may make in all: far beyond any answer, far below the machine's memory.
    static constexpr std::size_t kStringBudget = std::size_t{64} << 20;

    // Appends an instruction and keeps count of the stack depth it needs.
    void Emit(Op op, std::int32_t arg = 0);
    void EmitNumber(double value);
    void EmitCall(NumberFunction1 fn);
    void EmitCall(NumberFunction2 fn);
    std::int32_t AddString(std::string text);
    std::int32_t AddVariable(ValueType type);
    void Reserve(std::size_t instructions) { code_.reserve(instructions); }

    // Runs to the end or to the first run-time fault, which goes to hooks and stops the run.
    void Run(ScriptContext* context, RunHooks& hooks) const;

private:
    void Track(Op op);

    std::vector<Instruction> code_;
    std::vector<std::string> strings_;
    std::int32_t numberVariables_ = 0;
    std::int32_t stringVariables_ = 0;
    int numberDepth_ = 0, maxNumberDepth_ = 0;
    int stringDepth_ = 0, maxStringDepth_ = 0;
};

}  // namespace script
