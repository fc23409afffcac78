// The eight settings: their log lines, the one-line preferences file and its reader.

#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

namespace {
const char* const kPreferencesFile = "VL3Preferences";

std::string Pair(bool first) { return first ? "True,False" : "False,True"; }
}  // namespace

void Window1::WirePreferences() {
    const std::pair<ValueControl*, const char*> lines[] = {
        {&normbutton, "Chose Normal Math Mode"}, {&scibutton1, "Chose Scientific  Math Mode"},
        {&RadioButton3, "Chose Base e log"},     {&RadioButton4, "Chose Base 10 log"},
        {&RadioButton1, "Chose radians"},        {&RadioButton2, "Chose degrees"},
        {&RadioButton5, "Chose Smart Search"},   {&RadioButton6, "Chose literal search"},
    };
    for (const auto& [control, line] : lines) control->Action = [this, text = std::string(line)] { LogLine(text); };
    CheckBox1.Action = [this] { LogLine(CheckBox1.Value() ? "PurgePretty Activated" : "Purge Pretty Dectivated"); };
    CheckBox2.Action = [this] {
        LogLine(CheckBox2.Value() ? "Chose use clipboard for conversions." : "Chose do not use clipboard for conversions.");
    };
    PushButton42.Action = [this] { PushButton42_Action(); };
}

void Window1::PushButton42_Action() {
    const std::string line = Pair(RadioButton1.Value()) + ";" + Pair(RadioButton3.Value()) + ";" +
                             Pair(RadioButton5.Value()) + ";" + Pair(normbutton.Value()) + ";" +
                             (CheckBox1.Value() ? "True" : "False") + ";" + (CheckBox2.Value() ? "True" : "False") +
                             ";" + Str(PopupMenu2.ListIndex()) + ";" + Str(popconvert.ListIndex());
    TextOutputStreamRef out = platform.Folder(SpecialFolder::Preferences)->Child(kPreferencesFile)->CreateTextFile();
    out->Write(line);
    out->Close();
    LogLine("--Preferences Saved");
}

void Window1::ReadPreferences() {
    FolderItemRef folder = platform.Folder(SpecialFolder::Preferences);
    FolderItemRef file = folder ? folder->Child(kPreferencesFile) : FolderItemRef();
    if (!file || !file->Exists()) return;
    TextInputStreamRef in = file->OpenAsTextFile();
    if (!in) return;
    const std::string line = in->ReadLine();
    in->Close();

    const std::pair<RadioButton*, RadioButton*> pairs[] = {
        {&RadioButton1, &RadioButton2}, {&RadioButton3, &RadioButton4},
        {&RadioButton5, &RadioButton6}, {&normbutton, &scibutton1}};
    const std::vector<std::string> fields = Split(line, ";");
    for (size_t i = 0; i < fields.size() && i < 8; ++i) {
        const std::string& field = fields[i];
        if (i < 4) {
            const bool first = StrEq(NthField(field, ",", 1), "True");
            pairs[i].first->SetValue(first);
            pairs[i].second->SetValue(!first);
        } else if (i < 6) {
            (i == 4 ? CheckBox1 : CheckBox2).SetValue(StrEq(field, "True"));
        } else {
            // A damaged index must not stop the start: rows beyond the lists are left alone.
            RowControl& menu = i == 6 ? static_cast<RowControl&>(PopupMenu2) : popconvert;
            RowControl& list = i == 6 ? static_cast<RowControl&>(Listbox1) : Listbox2;
            const double value = Val(field);
            const int index = value >= -1 && value < 1e9 ? static_cast<int>(value) : -2;
            if (index >= -1 && index < menu.ListCount()) menu.SetListIndex(index);
            if (index >= -1 && index < list.ListCount()) list.SetListIndex(index);
        }
    }
}
