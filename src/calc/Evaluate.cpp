// RUN: every calculation becomes a three-line script, and its print is the answer.

#include "calc/EvalIt.h"
#include "framework/Text.h"
#include "script/CompileError.h"
#include "window/Window1.h"

using namespace fw;

void Window1::PushButton1_Action() {
    const std::string expression = EditField1.Text();
    EvalIt script(*this);
    if (!PushButton40.Enabled()) PushButton40.SetEnabled(true);
    script.Reset();
    script.Context = this;
    const std::string printLine = scibutton1.Value() ? "print Format(x," + fmt + ")" : "print Str(x)";
    script.Source = "Dim x As double" + EndOfLine + "x = 1.0*" + expression + EndOfLine + printLine;
    script.Run();
}

void EvalIt::Event_Print(const std::string& msg) {
    Window1& w = window_;
    Clipboard clipboard(w.platform);
    if (w.quad != 1 && w.twodim != 1) w.Blink();
    clipboard.SetText(msg + w.unt);
    if (w.quad == 1) w.EditField9.SetText(w.EditField9.Text() + ", " + msg);
    else if (w.twodim == 1) w.TextField2.SetText(w.TextField2.Text() + ", " + msg);
    w.EditField5.SetText(msg + w.unt);
    w.LogLine("Output:" + msg + w.unt);
    clipboard.Close();
    w.platform.Beep();
    w.quad = 0;
    w.twodim = 0;
}

void EvalIt::Event_RuntimeError(int, const fw::RuntimeException&) { window_.LogLine("ERROR: 109"); }

void EvalIt::Event_CompilerError(int, int errorNumber, const std::string&) {
    window_.LogLine("ERROR: " + std::string(script::CompileErrorText(errorNumber)));
}
