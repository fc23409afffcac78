#include "window/Window1.h"

#include <cmath>

#include "framework/Text.h"

using namespace fw;

Window1::Window1(fw::Platform& desktop) : Window("VELMORA", 800, 900), platform(desktop) {
    Frame = 7;
    Resizeable = false;
    MaximizeButton = false;
    LayOut();
    SetUpControls();
    WireDelivery();
    WirePreferences();
    WireWindowModes();
    WireKeypad();
    WireMemory();
    WireSolvers();
    WireConversions();
    WireSearch();
    WireHelp();
}

Window1::~Window1() = default;

void Window1::SetUpControls() {
    EditField1.SetVisible(false);
    PushButton1.SetVisible(false);

    // Each pair of radio buttons shares its group box.
    normbutton.Group = scibutton1.Group = "Math";
    RadioButton3.Group = RadioButton4.Group = "Log";
    RadioButton1.Group = RadioButton2.Group = "Trig";
    RadioButton5.Group = RadioButton6.Group = "Search";
    RadioButton7.Group = RadioButton8.Group = RadioButton9.Group = "Choose";

    // The keypad is created disabled; start-up enables it.
    for (int number = 5; number <= 40; ++number)
        if (Control* key = Find("PushButton" + std::to_string(number))) key->SetEnabled(false);

    EditField4.SetBackColor(0xFFFF66);
    EditField5.SetBackColor(0xFFFFFF);
    for (TextControl* field : {&EditA, &EditB, &EditC, &A1, &B1, &C1, &D2, &E2, &F2}) field->Alignment = 3;
    for (TextControl* readOnly : {&EditField2, &EditField10, &TextArea1, &TextArea2, &TextArea3, &TextArea4, &TextArea5,
                                  &TextArea6})
        readOnly->ReadOnly = true;
    StaticText18.SetVisible(false);
    StaticText24.TextColor = 0x0000FF;
    StaticText24.Underline = true;

    for (Control* hidden : std::initializer_list<Control*>{&StaticText32, &StaticText33, &PushButton46, &Listbox3})
        hidden->SetVisible(false);

    // Three empty rows stand in the category menu until the conversion table fills it.
    for (int row = 0; row < 3; ++row) PopupMenu2.AddRow("");
    for (PopupMenu* adds : {&PopupMenu1, &PopupMenu3, &PopupMenu4}) {
        adds->AddRow("Optional Adds");
        adds->SetListIndex(0);
    }

    BevelButton1.Open = [this] { BevelButton1_Open(); };
    PushButton1.Action = [this] { PushButton1_Action(); };
}

void Window1::BevelButton1_Open() {
    BevelButton1.SetCaption("Action");
    BevelButton1.CaptionAlign = 0;
    BevelButton1.HasMenu = 2;
    for (const std::string& row : Split("Calculate,Convert,Solve,Physical Data,Astro Data,Math Formulas,Evaluate,Settings", ","))
        BevelButton1.AddRow(row);
}

namespace {
const char* const kContextFunctions[] = {"log10", "ln", "AsinD", "AcosD", "AtanD"};
}

int Window1::FindFunction(std::string_view name) const {
    for (int id = 0; id < 5; ++id)
        if (StrEq(name, kContextFunctions[id])) return id;
    return -1;
}

double Window1::CallFunction(int id, double argument) {
    switch (id) {
    case 0: return log10(argument);
    case 1: return ln(argument);
    case 2: return AsinD(argument);
    case 3: return AcosD(argument);
    default: return AtanD(argument);
    }
}

// The seven-digit constants are the program's own, not the exact 1/ln 10 and 180/pi.
double Window1::log10(double x) { return std::log(x) * 0.4342945; }
double Window1::ln(double x) { return std::log(x); }
double Window1::AsinD(double x) { return std::asin(x) * 57.29578; }
double Window1::AcosD(double x) { return std::acos(x) * 57.29578; }
double Window1::AtanD(double x) { return std::atan(x) * 57.29578; }

bool Window1::PropertyText(const std::string& name, std::string& value) const {
    auto join = [](const std::vector<std::string>& rows) {
        std::string text;
        for (const std::string& row : rows) text += (text.empty() ? "" : "\n") + row;
        return text;
    };
    auto dictionary = [](const std::unique_ptr<Dictionary>& d) { return std::string(d ? "Dictionary" : "nil"); };
    const std::pair<const char*, std::string> properties[] = {
        {"unt", unt}, {"fmt", fmt}, {"wincon", Str(wincon)}, {"placeit", placeit}, {"placeit2", placeit2},
        {"pcconvert", Str(pcconvert)}, {"popcon", Str(popcon)}, {"choices", join(choices)},
        {"changeit", join(changeit)}, {"convertit", convertit}, {"iload", Str(iload)},
        {"formnumber", Str(formnumber)}, {"quad", Str(quad)}, {"twodim", Str(twodim)}, {"tabclk", Str(tabclk)},
        {"knum3", join(knum3)}, {"knum4", join(knum4)}, {"knum5", join(knum5)}, {"doc", doc ? "XmlDocument" : "nil"},
        {"dict", dictionary(dict)}, {"dict2", dictionary(dict2)}, {"dict3", dictionary(dict3)},
        {"dict4", dictionary(dict4)}, {"dict5", dictionary(dict5)},
    };
    for (const auto& [propertyName, text] : properties) {
        if (StrEq(name, propertyName)) {
            value = text;
            return true;
        }
    }
    return false;
}
