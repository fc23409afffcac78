// convert.txt, read once when PopupMenu2 opens, into the four lists and the packed tables
// `choices` ("Name;label;label") and `changeit` ("Name;label:fragment;label:fragment"), and
// the two menus kept in step with them. The tables are searched by name, never by row.

#include <algorithm>

#include "framework/Exceptions.h"
#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

namespace {
// The framework refuses a row past the end; with no rows the selection simply stays unset.
void SelectFirstRow(RowControl& list) {
    if (list.ListCount() > 0) list.SetListIndex(0);
}
}  // namespace

void Window1::PopupMenu2_Open() {
    // A missing data folder is a nil fault of its own; only the file's handle is checked.
    FolderItemRef file = platform.Folder(SpecialFolder::ApplicationData)->Child("VLSupport")->Child("convert.txt");
    if (!file) {
        platform.MsgBox("FolderItem convert.txt does not exist! See startup log");
        return;
    }
    try {
        // A file that cannot be opened is a nil stream: not this handler's business.
        TextInputStreamRef in = file->OpenAsTextFile();
        const std::string text = ReplaceLineEndings(in->ReadAll(), EndOfLine);
        in->Close();

        XmlDocument document(text);
        const XmlNodeList categories = document.Child(0)->Xql("Category");
        PopupMenu2.DeleteAllRows();
        std::string labels;
        std::string fragments;
        for (int c = 0; c < categories.Length(); ++c) {
            const XmlNodeRef category = categories.Item(c);
            const XmlNodeList names = category->Xql("Name");
            const XmlNodeList conversions = category->Xql("List/SubList");
            const std::string name = names.Item(0)->Child(0)->Value();
            PopupMenu2.AddRow(name);
            Listbox1.AddRow(name);
            for (int s = 0; s < conversions.Length(); ++s) {
                const XmlNodeRef conversion = conversions.Item(s);
                const std::string label = conversion->Child(0)->Value();
                labels += ";" + label;
                fragments += ";" + label + ":" + conversion->GetAttribute("convert");
                if (c == 0) {
                    popconvert.AddRow(label);
                    Listbox2.AddRow(label);
                    if (s == conversions.Length() - 1) {
                        popconvert.SetListIndex(0);
                        Listbox2.SetListIndex(0);
                    }
                }
            }
            choices.push_back(name + labels);
            changeit.push_back(name + fragments);
            labels.clear();
            fragments.clear();
        }
        popmenu();
        // The first set fires Change, which fills popconvert and through it sets convertit.
        SelectFirstRow(PopupMenu2);
        SelectFirstRow(PopupMenu2);
        iload = 1;
    } catch (const XmlException&) {
        platform.MsgBox("Error in reading XML file in Application Data");
    }
}

void Window1::popmenu() {
    // Taken before the loop: the menu is emptied before the rows go back.
    const int n = PopupMenu2.ListCount();
    std::vector<std::string> names;
    // Each row is read by selecting it, which rebuilds popconvert and Listbox2 every time.
    for (int i = 0; i <= PopupMenu2.ListCount() - 1; ++i) {
        PopupMenu2.SetListIndex(i);
        names.push_back(PopupMenu2.Text());
    }
    // Ascending without regard to case, as the program's string equality compares.
    std::stable_sort(names.begin(), names.end(),
                     [](const std::string& a, const std::string& b) { return Lowercase(a) < Lowercase(b); });
    PopupMenu2.DeleteAllRows();
    Listbox1.DeleteAllRows();
    for (int i = 0; i <= n - 1; ++i) {
        PopupMenu2.AddRow(names[static_cast<size_t>(i)]);
        Listbox1.AddRow(names[static_cast<size_t>(i)]);
    }
}

void Window1::PopupMenu2_Change() {
    if (iload != 0) LogLine(">>" + PopupMenu2.Text());
    if (PopupMenu2.ListCount() == 0) return;
    popconvert.DeleteAllRows();
    Listbox2.DeleteAllRows();
    // Every entry of that name counts: categories of one name list their labels together.
    for (const std::string& entry : choices) {
        if (!StrEq(NthField(entry, ";", 1), PopupMenu2.Text())) continue;
        for (int field = 2; field <= CountFields(entry, ";"); ++field) {
            popconvert.AddRow(NthField(entry, ";", field));
            Listbox2.AddRow(NthField(entry, ";", field));
        }
    }
    SelectFirstRow(popconvert);
    SelectFirstRow(Listbox2);
}

void Window1::popconvert_Change() {
    if (popconvert.ListCount() == 0) return;
    // The first hit in file order wins; with none, convertit keeps what it had.
    for (const std::string& entry : changeit) {
        if (!StrEq(NthField(entry, ";", 1), PopupMenu2.Text())) continue;
        for (int field = 2; field <= CountFields(entry, ";"); ++field) {
            const std::string conversion = NthField(entry, ";", field);
            if (StrEq(NthField(conversion, ":", 1), popconvert.Text())) {
                convertit = NthField(conversion, ":", 2);
                return;
            }
        }
    }
}

bool Window1::popconvert_MouseDown(int, int) {
    popcon = 1;
    // The row chosen before the menu opens.
    LogLine(">" + popconvert.Text());
    return false;
}

void Window1::popconvert_MouseExit() {
    // popcon has no reader; the flag is kept as the window has always kept it.
    if (wincon == 0 && StrEq(BevelButton1.Caption(), "Settings") && popcon == 1) popcon = 0;
}
