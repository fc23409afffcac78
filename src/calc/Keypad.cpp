// The soft keys of the Calculate page. Every key but "pa" writes at the very end of the field,
// wherever the caret stands.

#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

void Window1::WireKeypad() {
    const std::pair<PushButton*, const char*> appending[] = {
        {&PushButton5, "0"},     {&PushButton6, "1"},     {&PushButton7, "2"},     {&PushButton8, "3"},
        {&PushButton9, "4"},     {&PushButton10, "5"},    {&PushButton11, "6"},    {&PushButton12, "7"},
        {&PushButton13, "8"},    {&PushButton14, "9"},    {&PushButton15, "."},    {&PushButton16, "+"},
        {&PushButton17, "-"},    {&PushButton18, "*"},    {&PushButton19, "/"},    {&PushButton20, "^"},
        {&PushButton21, "E"},    {&PushButton22, ")"},    {&PushButton23, "("},    {&PushButton24, "sin("},
        {&PushButton25, "cos("}, {&PushButton26, "tan("}, {&PushButton27, "exp("}, {&PushButton28, "sqrt("},
        {&PushButton29, "log("}, {&PushButton30, "PI"},   {&PushButton31, "x"},    {&PushButton32, ":"},
        {&PushButton36, "y"},    {&PushButton37, ";"},
    };
    for (const auto& [key, text] : appending)
        key->Action = [this, more = std::string(text)] { EditField4.SetText(EditField4.Text() + more); };
    PushButton38.Action = [this] { EditField4.SetText(Left(EditField4.Text(), Len(EditField4.Text()) - 1)); };
    PushButton39.Action = [this] { EditField4.InsertAtCaret(platform.ClipboardText()); };
    PushButton35.Action = [this] { EditField4.SetText(""); };
    PushButton40.Action = [this] { PushButton40_Action(); };
}

void Window1::PushButton40_Action() {
    // Greyed while it runs in the expanded window; RUN or branches b and e enable it again.
    if (PushButton40.Enabled() && wincon == 1) PushButton40.SetEnabled(false);
    std::string e;
    const std::string formula = EditField4.Text();
    if (InStr(formula, ":") > 0) {
        const std::string args = NthField(formula, ":", 2);
        const std::string head = NthField(formula, ":", 1);
        if (InStr(args, ";") > 0) {
            e = ReplaceAll(head, "x", NthField(args, ";", 1));
            e = ReplaceAll(e, "y", NthField(args, ";", 2));
        } else {
            e = ReplaceAll(head, "x", args);
        }
        EditField4.SetText(head + ":");
    } else {
        e = formula;
    }
    LogLine("Entered: " + e);
    e = ReplaceAll(e, " ", "");
    e = ReplaceAll(e, ",", "");
    if (!CheckBox1.Value()) {
        PlayClaves();
        return;
    }
    e = PurgePretty(e);
    e = ReplaceAll(e, "x10", "e");
    const std::string caption = BevelButton1.Caption();
    if (StrEq(caption, "convert") && !StrEq(PopupMenu2.Text(), "Number")) e = Str(Val(e));
    if (StrEq(caption, "calculate") || StrEq(caption, "evaluate")) {
        unt = " ";
        if (RadioButton4.Value() && InStr(e, "log(") > 0) e = ReplaceAll(e, "log(", "log10(");
        if (RadioButton2.Value()) {
            const std::pair<const char*, const char*> degrees[] = {
                {"Asin(", "AsinD("}, {"sin(", "sin((PI/180)*"}, {"Acos(", "AcosD("},
                {"cos(", "cos((PI/180)*"}, {"Atan(", "AtanD("}, {"tan(", "tan((PI/180)*"}};
            for (const auto& [from, to] : degrees) {
                if (InStr(e, from) == 0) continue;
                std::string rewritten = ReplaceAll(e, from, to);
                e.swap(rewritten);
            }
        }
        e = ReplaceFactorials(e);
        if (InStr(e, "PI") > 0) e = ReplacePi(e);
        EditField1.SetText(e);
        PushButton1.Push();
    } else if (ConvertFromKey(caption, e)) {
        return;
    } else {
        LogLine("Error: Search Term not found");
        LogLine("Try words in a different order or use a single word or part of a word");
        PushButton40.SetEnabled(true);
    }
}
