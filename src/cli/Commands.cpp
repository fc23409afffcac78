#include "cli/Commands.h"

#include <ostream>

#include "framework/EventBoundary.h"
#include "framework/Text.h"

using namespace fw;

void Commands::Drop(const std::string& text) {
    DragItem item{true, text};
    RunEvent(platform, [&] { window.Event_DropObject(&item, 0); });
}

bool Commands::Choose(const std::string& caption) {
    for (int row = 0; row < window.BevelButton1.ListCount(); ++row) {
        if (StrEq(window.BevelButton1.List(row), caption)) {
            RunEvent(platform, [&] { window.BevelButton1.Choose(row); });
            return true;
        }
    }
    return false;
}

std::string Unescape(const std::string& text) {
    std::string result;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            const char next = text[++i];
            result += next == 'n' ? '\n' : next == 't' ? '\t' : next;
        } else {
            result += text[i];
        }
    }
    return result;
}

std::string EscapeNewlines(const std::string& text) {
    std::string result;
    for (char c : text) {
        if (c == '\n') result += "\\n";
        else if (c == '\\') result += "\\\\";
        else result += c;
    }
    return result;
}

// Prints the record `name` names, one entry a line; false if it names none.
bool Commands::List(const std::string& name, std::ostream& out, std::ostream& err) const {
    const std::pair<const char*, const std::vector<std::string>*> records[] = {
        {"messages", messages}, {"sounds", sounds}, {"urls", urls}};
    for (const auto& [recordName, record] : records) {
        if (!StrEq(name, recordName)) continue;
        if (!record) {
            err << "error: this desktop keeps no record of " << recordName << "\n";
            return true;
        }
        for (const std::string& entry : *record) out << EscapeNewlines(entry) << "\n";
        return true;
    }
    return false;
}

bool Commands::Get(const std::string& name, std::string& value) {
    // NAME.Enabled and NAME.Visible of any control; no control's name holds a dot.
    if (const size_t dot = name.rfind('.'); dot != std::string::npos) {
        const Control* control = window.Find(name.substr(0, dot));
        const std::string property = name.substr(dot + 1);
        if (!control || !(StrEq(property, "Enabled") || StrEq(property, "Visible"))) return false;
        value = (StrEq(property, "Enabled") ? control->Enabled() : control->Visible()) ? "true" : "false";
        return true;
    }
    if (StrEq(name, "clipboard")) value = platform.ClipboardText();
    else if (StrEq(name, "log")) value = window.EditField2.Text();
    else if (StrEq(name, "size")) value = Str(window.Width()) + "x" + Str(window.Height());
    else if (window.PropertyText(name, value)) return true;
    else if (Control* control = window.Find(name)) {
        if (auto* text = dynamic_cast<TextControl*>(control)) value = text->Text();
        else if (auto* label = dynamic_cast<Label*>(control)) value = label->Text();
        else if (auto* push = dynamic_cast<PushButton*>(control)) value = push->Caption();
        else if (auto* bevel = dynamic_cast<BevelButton*>(control)) value = bevel->Caption();
        else if (auto* two = dynamic_cast<ValueControl*>(control)) value = two->Value() ? "true" : "false";
        else if (auto* rows = dynamic_cast<RowControl*>(control)) value = rows->Text();
        else if (auto* panel = dynamic_cast<PanelControl*>(control)) value = Str(panel->Value());
        else if (auto* image = dynamic_cast<ImageWell*>(control)) value = image->Image();
        else if (auto* timer = dynamic_cast<Timer*>(control)) value = Str(timer->Mode());
        else return false;
    } else {
        return false;
    }
    return true;
}

void Commands::Click(Control& control, const std::string& rest) {
    const std::vector<std::string> numbers = Split(Trim(rest), " ");
    const int first = numbers.empty() ? 0 : static_cast<int>(Val(numbers[0]));
    const int second = numbers.size() < 2 ? 0 : static_cast<int>(Val(numbers[1]));
    if (auto* list = dynamic_cast<Listbox*>(&control)) list->ClickCell(first, second);
    else if (auto* tabs = dynamic_cast<TabPanel*>(&control)) tabs->ClickTab(first, 40 + 60 * first);
    else if (auto* two = dynamic_cast<ValueControl*>(&control)) two->Click();
    else if (auto* push = dynamic_cast<PushButton*>(&control)) push->Push();
    else control.FireMouseDown(first == 0 ? 10 : first, second == 0 ? 10 : second);
}

void Commands::Set(Control& control, const std::string& value) {
    if (auto* text = dynamic_cast<TextControl*>(&control)) {
        // A user's edit: the old text goes, then each key is typed so that KeyDown and TextChange fire.
        text->SetSelection(0, Len(text->Text()));
        if (value.empty()) text->InsertAtCaret("");
        for (int i = 1; i <= Len(value); ++i) text->TypeKey(Mid(value, i, 1));
    } else if (auto* two = dynamic_cast<ValueControl*>(&control)) {
        const bool on = StrEq(value, "true");
        if (two->Value() != on) two->Click();
    } else if (auto* rows = dynamic_cast<RowControl*>(&control)) {
        rows->SetListIndex(static_cast<int>(Val(value)));
    } else {
        throw RuntimeException(control.Name() + " takes no value");
    }
}

CommandLine::CommandLine(const std::string& line) : command(Lowercase(NthField(line, " ", 1))) {
    const size_t space = line.find(' ');
    if (space != std::string::npos) rest = line.substr(space + 1);
    name = NthField(rest, " ", 1);
    const size_t nameEnd = rest.find(' ');
    if (nameEnd != std::string::npos) value = Unescape(rest.substr(nameEnd + 1));
}

bool Commands::Execute(const std::string& line, std::ostream& out, std::ostream& err) {
    const CommandLine parsed(line);
    const std::string& command = parsed.command;
    const std::string& rest = parsed.rest;
    const std::string& name = parsed.name;
    const std::string& value = parsed.value;

    if (command.empty()) return true;
    if (command == "quit") {
        RunEvent(platform, [this] { window.Close(); });
        return false;
    }
    if (command == "drop") Drop(Unescape(rest));
    else if (command == "choose") {
        if (!Choose(Unescape(rest))) err << "error: no action " << rest << "\n";
    } else if (command == "shift") {
        if (holdShift) holdShift(StrEq(Trim(rest), "on"));
        else err << "error: this desktop has a real shift key\n";
    }
    else if (command == "timer") RunEvent(platform, [this] { window.Timer1.Fire(); });
    else if (command == "get") {
        const std::string what = Trim(rest);
        std::string text;
        if (!List(what, out, err)) {
            if (Get(what, text)) out << EscapeNewlines(text) << "\n";
            else err << "error: no such name " << rest << "\n";
        }
    } else if (command == "push" || command == "click" || command == "set") {
        Control* control = window.Find(name);
        if (!control) {
            err << "error: no such control " << name << "\n";
        } else if (command == "push") {
            auto* button = dynamic_cast<PushButton*>(control);
            if (button) RunEvent(platform, [&] { button->Push(); });
            else err << "error: " << name << " is not a push button\n";
        } else if (command == "click") {
            RunEvent(platform, [&] { Click(*control, value); });
        } else {
            RunEvent(platform, [&] { Set(*control, value); });
        }
    } else {
        err << "error: unknown command " << command << "\n";
    }
    return true;
}
