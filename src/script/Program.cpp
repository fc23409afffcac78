#include "script/Program.h"

#include "framework/Text.h"
#include "script/ScriptContext.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace script {

void Program::Track(Op op)
{
    // Stack effect of each instruction: numbers and strings pushed minus those popped.
    int numbers = 0, strings = 0;
    switch (op) {
    case Op::Line: break;
    case Op::PushNumber: numbers = 1; break;
    case Op::PushString: strings = 1; break;
    case Op::LoadNumber: numbers = 1; break;
    case Op::StoreNumber: numbers = -1; break;
    case Op::LoadString: strings = 1; break;
    case Op::StoreString: strings = -1; break;
    case Op::Negate: break;
    case Op::Add:
    case Op::Subtract:
    case Op::Multiply:
    case Op::Divide:
    case Op::Power: numbers = -1; break;
    case Op::Concat: strings = -1; break;
    case Op::CallNumber1: break;
    case Op::CallNumber2: numbers = -1; break;
    case Op::CallHost: break;
    case Op::StrOf: numbers = -1; strings = 1; break;
    case Op::FormatOf: numbers = -1; break;
    case Op::ValOf: numbers = 1; strings = -1; break;
    case Op::Print: strings = -1; break;
    }
    numberDepth_ += numbers;
    stringDepth_ += strings;
    maxNumberDepth_ = std::max(maxNumberDepth_, numberDepth_);
    maxStringDepth_ = std::max(maxStringDepth_, stringDepth_);
}

void Program::Emit(Op op, std::int32_t arg)
{
    Instruction& in = code_.emplace_back();
    in.op = op;
    in.arg = arg;
    Track(op);
}

void Program::EmitNumber(double value)
{
    Emit(Op::PushNumber);
    code_.back().number = value;
}

void Program::EmitCall(NumberFunction1 fn)
{
    Emit(Op::CallNumber1);
    code_.back().fn1 = fn;
}

void Program::EmitCall(NumberFunction2 fn)
{
    Emit(Op::CallNumber2);
    code_.back().fn2 = fn;
}

std::int32_t Program::AddString(std::string text)
{
    strings_.push_back(std::move(text));
    return static_cast<std::int32_t>(strings_.size() - 1);
}

std::int32_t Program::AddVariable(ValueType type)
{
    return type == ValueType::Number ? numberVariables_++ : stringVariables_++;
}

void Program::Run(ScriptContext* context, RunHooks& hooks) const
{
    // Variables take the first slots, the stack the rest; small scripts stay off the heap.
    std::array<double, 32> numberBuffer;
    std::vector<double> numberHeap;
    const std::size_t numberSlots = static_cast<std::size_t>(numberVariables_ + maxNumberDepth_);
    double* variables = numberBuffer.data();
    if (numberSlots > numberBuffer.size()) {
        numberHeap.resize(numberSlots);
        variables = numberHeap.data();
    }
    std::fill(variables, variables + numberVariables_, 0.0);
    double* top = variables + numberVariables_;  // one past the top of the number stack

    std::array<std::string, 4> stringBuffer;
    std::vector<std::string> stringHeap;
    const std::size_t stringSlots = static_cast<std::size_t>(stringVariables_ + maxStringDepth_);
    std::string* stringVariables = stringBuffer.data();
    if (stringSlots > stringBuffer.size()) {
        stringHeap.resize(stringSlots);
        stringVariables = stringHeap.data();
    }
    std::string* stringTop = stringVariables + stringVariables_;

    // Every string a run makes counts against one budget, so that a script cannot take the
    // machine's memory by doubling a text: it ends like any other run-time error.
    int line = 0;
    std::size_t stringBytes = 0;
    auto spend = [&](std::size_t bytes) {
        stringBytes += bytes;
        if (stringBytes <= kStringBudget) return true;
        hooks.RuntimeError(line, fw::OutOfMemoryException("The script's strings outgrew their memory."));
        return false;
    };
    for (const Instruction& in : code_) {
        switch (in.op) {
        case Op::Line: line = in.arg; break;
        case Op::PushNumber: *top++ = in.number; break;
        case Op::PushString:
            if (!spend(strings_[in.arg].size())) return;
            *stringTop++ = strings_[in.arg];
            break;
        case Op::LoadNumber: *top++ = variables[in.arg]; break;
        case Op::StoreNumber: variables[in.arg] = *--top; break;
        case Op::LoadString:
            if (!spend(stringVariables[in.arg].size())) return;
            *stringTop++ = stringVariables[in.arg];
            break;
        case Op::StoreString: stringVariables[in.arg] = std::move(*--stringTop); break;
        case Op::Negate: top[-1] = -top[-1]; break;
        case Op::Add: --top; top[-1] += *top; break;
        case Op::Subtract: --top; top[-1] -= *top; break;
        case Op::Multiply: --top; top[-1] *= *top; break;
        case Op::Divide: --top; top[-1] /= *top; break;
        case Op::Power: --top; top[-1] = std::pow(top[-1], *top); break;
        case Op::Concat:
            --stringTop;
            if (!spend(stringTop[-1].size() + stringTop->size())) return;
            stringTop[-1] += *stringTop;
            break;
        case Op::CallNumber1: top[-1] = in.fn1(top[-1]); break;
        case Op::CallNumber2: --top; top[-1] = in.fn2(top[-1], *top); break;
        case Op::CallHost:
            if (context == nullptr) {
                hooks.RuntimeError(line, fw::NilObjectException("The script has no context."));
                return;
            }
            try {
                top[-1] = context->CallFunction(in.arg, top[-1]);
            } catch (const fw::RuntimeException& error) {
                hooks.RuntimeError(line, error);
                return;
            }
            break;
        case Op::StrOf: *stringTop++ = fw::Str(*--top); break;
        case Op::FormatOf: stringTop[-1] = fw::Format(*--top, stringTop[-1]); break;
        case Op::ValOf: *top++ = fw::Val(*--stringTop); break;
        case Op::Print: hooks.Print(*--stringTop); break;
        }
    }
}

}  // namespace script
