#pragma once
// The script object of one calculation: it hands the printed answer and any error to the
// main window.

#include "script/RbScript.h"

class Window1;

class EvalIt : public script::RbScript {
public:
    explicit EvalIt(Window1& window) : window_(window) {}

protected:
    void Event_Print(const std::string& msg) override;
    void Event_RuntimeError(int line, const fw::RuntimeException& error) override;
    void Event_CompilerError(int line, int errorNumber, const std::string& errorMsg) override;

private:
    Window1& window_;
};
