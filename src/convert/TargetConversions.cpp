// A number and the conversion chosen in the menus, turned into an answer: by the row's fragment,
// by the fixed temperature expressions, or by a change of number base. The three roads in (a
// drop, ButtonAct and the = key) stay three: their differences are required.

#include <cmath>
#include <cstdint>

#include "framework/Array.h"
#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

namespace {
struct Temperature {
    const char* label;
    const char* before;  // text in front of the number
    const char* after;   // text behind it
};

const Temperature kTemperatures[] = {
    {"Fahrenheit(F)->C", "(", "-32)/1.8"},
    {"Celsius/Centigrade(C)->F", "", "*1.8+32"},
    {"Kelvin(K)->C", "", "-273.15"},
    {"C->K", "", "+273.15"},
    {"Rankine(R)->F", "", "-459.67"},
    {"F->R", "", "+459.67"},
    {"R->K", "", "/1.8"},
    {"K->R", "", "*1.8"},
    {"F->K", "((", "-32)/1.8)+273.15"},
    {"K->F", "(", "-273.15)*1.8+32"},
};

// Round(Val(text)) as a signed 32-bit integer. Out of range it keeps the low 32 bits, so that
// no input is undefined behaviour; beyond any 64-bit integer it is -1.
std::int32_t RoundToInt32(double value) {
    const double rounded = std::round(value);
    if (!(rounded > -9.2e18 && rounded < 9.2e18)) return -1;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::int64_t>(rounded)));
}
}  // namespace

std::string Window1::evconvert(std::int32_t) {
    // A label without "->" has no piece 1: an out-of-bounds fault that nothing here catches.
    unt = " " + Item(Split(popconvert.Text(), "->"), 1);
    return convertit;
}

std::string Window1::evconvert3(const std::string& text) {
    unt = " " + Item(Split(popconvert.Text(), "->"), 1);
    for (const Temperature& row : kTemperatures)
        if (StrEq(popconvert.Text(), row.label)) return row.before + text + row.after;
    return "";
}

void Window1::evconvert2(const std::string& text) {
    Clipboard clipboard(platform);
    // Computed for every label, used or not; the raw text keeps digits such as FF.
    const std::int32_t n = RoundToInt32(Val(text));
    const std::string label = popconvert.Text();
    std::string r;
    bool listed = true;
    if (StrEq(label, "Decimal(Integer)->Hex")) r = Hex(n);
    else if (StrEq(label, "Hex->Decimal")) r = Str(Val("&h" + text));
    else if (StrEq(label, "Decimal->Oct")) r = Oct(n);
    else if (StrEq(label, "Oct->Decimal")) r = Str(Val("&o" + text));
    else if (StrEq(label, "Decimal->Binary")) r = Bin(n);
    else if (StrEq(label, "Binary->Decimal")) r = Str(Val("&b" + text));
    else listed = false;
    // unt is not used: a base change carries no unit text.
    if (listed) {
        clipboard.SetText(r);
        EditField5.SetText(r);
        LogLine("Output:" + r);
    }
    if (CheckBox2.Value()) Blink();
    clipboard.Close();
    platform.Beep();
}

void Window1::ConvertDrop(const std::string& text, const std::string& unitWord) {
    std::string working = text;
    if (CheckBox2.Value()) {
        if (StrEq(PopupMenu2.Text(), "Number")) {
            evconvert2(working);
        } else if (StrEq(PopupMenu2.Text(), "Temperature")) {
            working = evconvert3(working);
            EditField1.SetText(working);
            // Before RUN, so a failing script still blinks.
            Blink();
            PushButton1.Push();
        } else {
            working = working + evconvert(PopupMenu2.ListIndex());
            EditField1.SetText(working);
            Blink();
            PushButton1.Push();
        }
        return;
    }
    // Without the clipboard the Convert tab finishes the job: nothing is computed here.
    if (wincon == 0) {
        wincon = 1;
        SetSize(800, 600);
        LogLine("--Expanded Window Mode");
        TabPanel1.SetValue(3);
        TabPanel2.SetValue(3);
        LogLine("---Tabs set to Directions and Convert");
    }
    // "zz" is the sentinel of a drop without a blank, in any case.
    if (!StrEq(unitWord, "zz")) TextField1.SetText(working + " " + unitWord);
    else TextField1.SetText(working);
}

void Window1::ConvertButton(const std::string& text) {
    // As a drop with Use Clipboard set, but with no blink and never to the Convert tab.
    std::string working = text;
    if (StrEq(PopupMenu2.Text(), "Number")) {
        evconvert2(working);
    } else if (StrEq(PopupMenu2.Text(), "Temperature")) {
        working = evconvert3(working);
        EditField1.SetText(working);
        PushButton1.Push();
    } else {
        working = working + evconvert(PopupMenu2.ListIndex());
        EditField1.SetText(working);
        PushButton1.Push();
    }
}

bool Window1::ConvertFromKey(const std::string& caption, const std::string& expression) {
    if (!StrEq(caption, "convert")) return false;
    std::string e = expression;
    if (StrEq(PopupMenu2.Text(), "Number")) {
        evconvert2(e);
        // RUN, which usually enables the key again, did not run.
        if (!PushButton40.Enabled()) PushButton40.SetEnabled(true);
    } else if (StrEq(PopupMenu2.Text(), "Temperature")) {
        e = evconvert3(e);
        EditField1.SetText(e);
        PushButton1.Push();
    } else {
        e = e + evconvert(PopupMenu2.ListIndex());
        EditField1.SetText(e);
        PushButton1.Push();
    }
    return true;
}
