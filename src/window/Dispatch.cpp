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
    // Of the unit split only the word after the first blank is ever read.
    std::string unitWord = "zz";
    if (StrEq(BevelButton1.Caption(), "Evaluate")) {
        // The Evaluate branch reads the drop without asking whether it carries text.
        if (!obj) throw NilObjectException("drag item");
        if (StrEq(obj->Text, "?") || StrEq(obj->Text, "Help")) EvaluateHelp(obj->Text);
        else EvaluateValue(obj->Text);
        return;
    }
    if (!obj || !obj->TextAvailable) return;
    std::string text = obj->Text;
    if (StrEq(text, "help") || StrEq(text, "?")) {
        HelpBranch(text, true);
        return;
    }
    if (StrEq(BevelButton1.Caption(), "Action")) {
        BevelButton1.SetCaption("calculate");
        LogLine(">>>Calculate (default action)");
    }
    text = obj->Text;
    LogLine("Entered: " + text);
    const std::string caption = BevelButton1.Caption();
    if (StrEq(caption, "calculate") || StrEq(caption, "convert")) {
        if (InStr(text, " ") > 0) unitWord = NthField(text, " ", 2);
        text = FrontRewrite(std::move(text), CheckBox1.Value());
    }
    if (StrEq(caption, "convert") && !StrEq(PopupMenu2.Text(), "Number")) text = Str(Val(text));
    // Handed on, not copied: a drop may be megabytes.
    if (StrEq(caption, "calculate")) CalculateRewriteForDrop(std::move(text));
    else if (StrEq(caption, "convert")) ConvertDrop(text, unitWord);
    else if (IsSearchCaption(caption)) SearchRequest(caption, text, false);
    else PlayClaves();
}

void Window1::ButtonAct(const std::string& text) {
    Clipboard clipboard(platform);
    RegEx rg;
    if (StrEq(BevelButton1.Caption(), "Evaluate")) {
        // Only "?" asks for help here: "help" is taken as a value.
        if (StrEq(text, "?")) EvaluateHelp(text);
        else EvaluateValue(text);
        return;
    }
    if (text.empty()) return;
    if (StrEq(text, "help") || StrEq(text, "?")) {
        HelpBranch(text, false);
        return;
    }
    if (StrEq(BevelButton1.Caption(), "Action")) {
        BevelButton1.SetCaption("calculate");
        LogLine(">>>Calculate (default action)");
    }
    LogLine("Entered: " + text);
    std::string working = text;
    const std::string caption = BevelButton1.Caption();
    if (StrEq(caption, "calculate") || StrEq(caption, "convert")) working = FrontRewrite(working, CheckBox1.Value());
    if (StrEq(caption, "convert") && !StrEq(PopupMenu2.Text(), "Number")) working = Str(Val(working));
    if (StrEq(caption, "calculate")) CalculateRewriteForButton(working);
    else if (StrEq(caption, "convert")) ConvertButton(working);
    else if (IsSearchCaption(caption)) SearchRequest(caption, working, true);
    else PlayClaves();
}

void Window1::EvaluateValue(const std::string& text) {
    EditField4.SetText(NthField(EditField4.Text(), ":", 1) + ":" + text);
    PushButton40.Push();
}

bool Window1::IsSearchCaption(const std::string& caption) {
    return StrEq(caption, "physical data") || StrEq(caption, "astro data") || StrEq(caption, "Math Formulas");
}
