#pragma once

#include <string_view>

namespace script {

// Functions the host offers to scripts by name (case-blind), each double -> double.
class ScriptContext {
public:
    virtual ~ScriptContext() = default;
    // An id >= 0 for a function the host offers, or -1 if the name is unknown.
    virtual int FindFunction(std::string_view name) const = 0;
    // May throw fw::RuntimeException; the script then stops with a run-time error.
    virtual double CallFunction(int id, double argument) = 0;
};

}  // namespace script
