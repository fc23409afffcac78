// The Convert tab: a number with units, converted on either side of the last "/" of its units.
// It has no arithmetic of its own: it works the calculator's fields as a register, through the
// = key, and the answer goes back into the entry so that conversions chain.

#include "framework/Array.h"
#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

bool Window1::Listbox1_CellClick(int row, int, int, int) {
    // The menus are the choice; PopupMenu2's Change refills popconvert and Listbox2.
    PopupMenu2.SetListIndex(row);
    return false;
}

bool Window1::Listbox2_CellClick(int row, int, int, int) {
    popconvert.SetListIndex(row);
    return false;
}

void Window1::RadioButton7_Action() { LogLine("--Normal Unit Conversion Chosen"); }

void Window1::RadioButton8_Action() { LogLine("--Upper Unit Conversion Chosen"); }

void Window1::RadioButton9_Action() { LogLine("--Lower Unit Conversion Chosen"); }

void Window1::PushButton44_Action() {
    const double number = Val(TextField1.Text());
    const std::string typed = Trim(TextField1.Text());
    std::string mid = " ";
    // A pass: the entry as it stands goes through the = key; the answer lands in EditField5.
    auto pass = [this] {
        EditField4.SetText(TextField1.Text());
        PushButton40.Push();
    };
    // Upper or Lower Unit without a "/": the conversion runs a second time, as it always has.
    auto fallBack = [&] {
        pass();
        TextField1.SetText(EditField5.Text());
        LogLine("---No Unit divider '/' included. Default Chosen");
    };
    if (InStr(typed, " ") == 0) {
        pass();
        TextField1.SetText(EditField5.Text());
        LogLine("---No Units included. Default Chosen");
        return;
    }
    pass();
    if (RadioButton7.Value()) {
        TextField1.SetText(EditField5.Text());
        return;
    }
    if (RadioButton8.Value()) {
        if (InStr(typed, "/") == 0) {
            fallBack();
            return;
        }
        const std::vector<std::string> words = Split(typed, " ");
        const std::vector<std::string> units = Split(Item(words, static_cast<long long>(words.size()) - 1), "/");
        const std::string lower = Item(units, static_cast<long long>(units.size()) - 1);
        TextField1.SetText(EditField5.Text() + "/" + lower);
        return;
    }
    if (RadioButton9.Value()) {
        if (InStr(typed, "/") == 0) {
            fallBack();
            return;
        }
        const std::vector<std::string> answerWords =
            InStr(EditField5.Text(), " ") > 0 ? Split(EditField5.Text(), " ") : std::vector<std::string>{" ", " "};
        const std::vector<std::string> words = Split(typed, " ");
        const std::vector<std::string> units = Split(Item(words, static_cast<long long>(words.size()) - 1), "/");
        for (size_t piece = 0; piece + 1 < units.size(); ++piece) mid += units[piece] + "/";
        // The same conversion again; its result is the same.
        pass();
        const std::string converted =
            InStr(EditField5.Text(), " ") > 0 ? NthField(EditField5.Text(), " ", 1) : EditField5.Text();
        // x per old unit is x/f per new one, and x^2/(x*f) is exactly that: no inverse table.
        // The engine reads "-5^2" as -(5^2), so a negative x goes in parentheses.
        const std::string x = number < 0 ? "(" + Str(number) + ")" : Str(number);
        EditField4.SetText(x + "^2/" + converted);
        BevelButton1.SetCaption("Calculate");
        PushButton40.Push();
        // Three blanks in all: behind the answer, this one, and the one mid starts with.
        TextField1.SetText(EditField5.Text() + " " + mid + Item(answerWords, 1));
        BevelButton1.SetCaption("Convert");
        LogLine(mid + Item(answerWords, 1));
    }
}
