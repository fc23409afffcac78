// A drop on the window, and its twin ButtonAct for text given as a string: the decision tree
// on the action's caption. The two differ where the table of differences says so, and nowhere
// else.

#include "framework/RegEx.h"
#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

void Window1::Event_DropObject(const DragItem* obj, int) {
    Clipboard clipboard(platform);
    RegEx rg;
    std::vector<std::string> unitWords = {"x", "zz"};
    const std::string& caption = BevelButton1.Caption();
    if (StrEq(caption, "Evaluate")) {
        if (!obj) throw NilObjectException("drag item");
        return;
    }
    if (!obj || !obj->TextAvailable) return;
    std::string text = obj->Text;
    if (StrEq(text, "help") || StrEq(text, "?")) return;
    if (StrEq(caption, "Action")) {
        BevelButton1.SetCaption("calculate");
        LogLine(">>>Calculate (default action)");
    }
    text = obj->Text;
    LogLine("Entered: " + text);
    const std::string action = BevelButton1.Caption();
    if (StrEq(action, "calculate") || StrEq(action, "convert")) {
        if (InStr(text, " ") > 0) unitWords = Split(text, " ");
        text = FrontRewrite(text, CheckBox1.Value());
    }
    if (StrEq(action, "calculate")) {
        CalculateRewriteForDrop(text);
    } else {
        PlayClaves();
    }
}

void Window1::ButtonAct(const std::string& text) {
    Clipboard clipboard(platform);
    RegEx rg;
    const std::string& caption = BevelButton1.Caption();
    if (StrEq(caption, "Evaluate")) return;
    if (text.empty()) return;
    if (StrEq(text, "help") || StrEq(text, "?")) return;
    if (StrEq(caption, "Action")) {
        BevelButton1.SetCaption("calculate");
        LogLine(">>>Calculate (default action)");
    }
    LogLine("Entered: " + text);
    std::string working = text;
    const std::string action = BevelButton1.Caption();
    if (StrEq(action, "calculate") || StrEq(action, "convert")) working = FrontRewrite(working, CheckBox1.Value());
    if (StrEq(action, "calculate")) {
        CalculateRewriteForButton(working);
    } else {
        PlayClaves();
    }
}
