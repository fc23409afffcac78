#pragma once
// The control kinds. Setting a value from logic fires the control's event at once, inside the
// setter, when the value really changes; the logic relies on that as a call.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "framework/Control.h"

namespace fw {

class PushButton : public Control {
public:
    PushButton(Window& owner, std::string name, std::string caption);
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    // Runs Action to its end before returning.
    void Push();
    std::function<void()> Action;
    // The window's default button, which the Return key pushes.
    bool Default = false;

private:
    std::string caption_;
};

class BevelButton : public Control {
public:
    BevelButton(Window& owner, std::string name, std::string caption);
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    // Rows of the drop-down menu, counted from 0; MenuValue is -1 until a row is chosen.
    void AddRow(const std::string& text);
    void DeleteAllRows();
    int ListCount() const { return static_cast<int>(rows_.size()); }
    const std::string& List(int row) const;
    int MenuValue() const { return menuValue_; }
    void SetMenuValue(int row);
    // A user's choice from the menu: sets MenuValue, then runs Action.
    void Choose(int row);
    int CaptionAlign = 0;
    int HasMenu = 0;
    std::function<void()> Action;

private:
    std::string caption_;
    std::vector<std::string> rows_;
    int menuValue_ = -1;
};

// One-line (TextField) or multi-line (TextArea) editable text.
class TextControl : public Control {
public:
    TextControl(Window& owner, Kind kind, std::string name, std::string text = {});
    const std::string& Text() const { return text_; }
    void SetText(const std::string& text);
    // Appends without copying the whole text: the log grows by one line per event.
    void AppendText(const std::string& more);
    // What the last AppendText added, for views that append rather than redraw.
    std::string_view LastAppended() const;
    bool ReadOnly = false;
    bool Multiline() const { return GetKind() == Kind::TextArea; }
    // Back colour as 0xRRGGBB, or -1 for the platform's own.
    int BackColor() const { return backColor_; }
    void SetBackColor(int rgb);
    int Alignment = 0;  // 0 left, 3 right

    // Caret and selection in characters; views report the user's moves here without events.
    int SelStart() const { return selStart_; }
    int SelLength() const { return selLength_; }
    void SetSelection(int start, int length);
    // Replaces the selection with `text` and puts the caret behind it.
    void InsertAtCaret(const std::string& text);

    // A user's typing: KeyDown may swallow the key by returning true; otherwise the key goes
    // into the field (at the caret) and TextChange follows.
    void TypeKey(const std::string& key);
    std::function<bool(const std::string& key)> KeyDown;
    std::function<void()> TextChange;

private:
    std::string text_;
    int backColor_ = -1;
    int selStart_ = 0;
    int selLength_ = 0;
    size_t lastAppendSize_ = 0;
};

class TextField : public TextControl {
public:
    TextField(Window& owner, std::string name, std::string text = {})
        : TextControl(owner, Kind::TextField, std::move(name), std::move(text)) {}
};

class TextArea : public TextControl {
public:
    TextArea(Window& owner, std::string name, std::string text = {})
        : TextControl(owner, Kind::TextArea, std::move(name), std::move(text)) {}
};

// Rows of text chosen by index; shared by list boxes and pop-up menus. ListIndex is -1 with
// nothing chosen, and setting it to a new value fires Change.
class RowControl : public Control {
public:
    using Control::Control;
    int ListCount() const { return static_cast<int>(rows_.size()); }
    int ListIndex() const { return listIndex_; }
    void SetListIndex(int index);
    void AddRow(const std::string& text);
    void DeleteAllRows();
    void RemoveRow(int row);
    // Column 0 of a row.
    const std::string& List(int row) const;
    // Column 0 of the chosen row, or "" with none.
    std::string Text() const;
    std::function<void()> Change;

protected:
    struct Row {
        std::vector<std::string> cells;
        std::vector<bool> checks;
    };
    Row& RowAt(int row);
    const Row& RowAt(int row) const;
    std::vector<Row> rows_;
    int listIndex_ = -1;
};

class PopupMenu : public RowControl {
public:
    PopupMenu(Window& owner, std::string name);
};

class Listbox : public RowControl {
public:
    Listbox(Window& owner, std::string name, int columnCount = 1, std::string columnWidths = {});
    int ColumnCount() const { return columnCount_; }
    const std::string& ColumnWidths() const { return columnWidths_; }
    // 0 default, 1 plain text, 2 check box.
    int ColumnType(int column) const;
    void SetColumnType(int column, int type);
    std::string Cell(int row, int column) const;
    void SetCell(int row, int column, const std::string& text);
    bool CellCheck(int row, int column) const;
    void SetCellCheck(int row, int column, bool checked);
    bool HasHeading = false;
    // A user's click on a cell: CellClick may return true to keep the click from the cell;
    // otherwise the row becomes the chosen one and a check box cell toggles.
    void ClickCell(int row, int column, int x = 1, int y = 1);
    std::function<bool(int row, int column, int x, int y)> CellClick;

private:
    void CheckColumn(int column) const;
    int columnCount_;
    std::string columnWidths_;
    std::vector<int> columnTypes_;
};

// A two-state control: radio buttons of one group exclude each other.
class ValueControl : public Control {
public:
    ValueControl(Window& owner, Kind kind, std::string name, std::string caption, bool value);
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    bool Value() const { return value_; }
    void SetValue(bool value);
    // The user's click: a radio button turns on, a check box toggles.
    void Click();
    std::function<void()> Action;
    // Radio buttons with the same group name exclude each other.
    std::string Group;

private:
    std::string caption_;
    bool value_;
};

class CheckBox : public ValueControl {
public:
    CheckBox(Window& owner, std::string name, std::string caption, bool value = false)
        : ValueControl(owner, Kind::CheckBox, std::move(name), std::move(caption), value) {}
};

class RadioButton : public ValueControl {
public:
    RadioButton(Window& owner, std::string name, std::string caption, bool value = false)
        : ValueControl(owner, Kind::RadioButton, std::move(name), std::move(caption), value) {}
};

// TabPanel (with tab captions) and PagePanel (pages without tabs).
class PanelControl : public Control {
public:
    PanelControl(Window& owner, Kind kind, std::string name, std::vector<std::string> pages);
    const std::vector<std::string>& Pages() const { return pages_; }
    int PageCount() const { return static_cast<int>(pages_.size()); }
    int Value() const { return value_; }
    void SetValue(int page);
    std::function<void()> Change;

private:
    std::vector<std::string> pages_;
    int value_ = 0;
};

class TabPanel : public PanelControl {
public:
    TabPanel(Window& owner, std::string name, std::vector<std::string> tabs)
        : PanelControl(owner, Kind::TabPanel, std::move(name), std::move(tabs)) {}
    // A user's click on a tab: mouse-down with its x first, then the change.
    void ClickTab(int page, int x);
};

class PagePanel : public PanelControl {
public:
    PagePanel(Window& owner, std::string name, int pageCount);
};

class ImageWell : public Control {
public:
    ImageWell(Window& owner, std::string name, std::string image = {});
    // The name of a picture resource ("target", "target2", ...), or "" for none.
    const std::string& Image() const { return image_; }
    void SetImage(const std::string& image);

private:
    std::string image_;
};

// Static text, group box captions and separators: labels with nothing to edit.
class Label : public Control {
public:
    Label(Window& owner, Kind kind, std::string name, std::string text = {});
    const std::string& Text() const { return text_; }
    void SetText(const std::string& text);
    int TextColor = -1;  // 0xRRGGBB or -1
    bool Underline = false;

private:
    std::string text_;
};

class StaticText : public Label {
public:
    StaticText(Window& owner, std::string name, std::string text = {})
        : Label(owner, Kind::StaticText, std::move(name), std::move(text)) {}
};

class GroupBox : public Label {
public:
    GroupBox(Window& owner, std::string name, std::string caption = {})
        : Label(owner, Kind::GroupBox, std::move(name), std::move(caption)) {}
};

class Separator : public Label {
public:
    Separator(Window& owner, std::string name) : Label(owner, Kind::Separator, std::move(name)) {}
};

// Mode 0 off, 1 fires once after Period milliseconds, 2 fires repeatedly. The platform's
// timer service watches Mode and calls Fire.
class Timer : public Control {
public:
    Timer(Window& owner, std::string name, int period = 1000);
    int Mode() const { return mode_; }
    void SetMode(int mode);
    int Period() const { return period_; }
    void SetPeriod(int period);
    // The period has elapsed: a one-shot timer turns itself off before Action runs.
    void Fire();
    std::function<void()> Action;

private:
    int mode_ = 0;
    int period_;
};

}  // namespace fw
