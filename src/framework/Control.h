#pragma once
// The control model the logic reads and writes by name. A control knows nothing of what draws
// it: a view attaches one ControlObserver and hears of every property that changes.

#include <functional>
#include <string>

namespace fw {

class Control;
class Window;

enum class Kind {
    PushButton, BevelButton, TextField, TextArea, Listbox, PopupMenu, RadioButton, CheckBox,
    TabPanel, PagePanel, ImageWell, StaticText, GroupBox, Separator, Timer
};

const char* KindName(Kind kind);

// What changed, so that a view can update only that.
enum class Property {
    Text, TextAppended, Caption, Value, Enabled, Visible, Rows, ListIndex, Image, Mode, Selection, Geometry, Style
};

class ControlObserver {
public:
    virtual ~ControlObserver() = default;
    virtual void ControlChanged(Control& control, Property property) = 0;
};

struct Rect {
    int Left = 0, Top = 0, Width = 0, Height = 0;
};

class Control {
public:
    Control(Window& owner, Kind kind, std::string name);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Kind GetKind() const { return kind_; }
    const std::string& Name() const { return name_; }
    Window& Owner() const { return owner_; }

    // Where the control lives: the panel that holds it and the page of that panel
    // (a TabPanel or PagePanel), or none for controls placed on the window itself.
    Control* Parent() const { return parent_; }
    int ParentPage() const { return parentPage_; }
    void PlaceIn(Control& panel, int page);

    // Window coordinates, as laid out in the designer.
    const Rect& Bounds() const { return bounds_; }
    void SetBounds(int left, int top, int width, int height);

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    // Keyboard order among the window's controls; nothing draws it.
    int TabIndex = 0;

    void SetObserver(ControlObserver* observer) { observer_ = observer; }

    std::function<void()> Open;
    std::function<void()> Close;
    std::function<bool(int x, int y)> MouseDown;
    std::function<void(int x, int y)> MouseUp;
    std::function<void()> MouseExit;

    // Helpers for the front ends: a user's act, delivered as the framework would.
    bool FireMouseDown(int x, int y) { return MouseDown ? MouseDown(x, y) : false; }
    void FireOpen() { if (Open) Open(); }
    void FireClose() { if (Close) Close(); }

protected:
    void Notify(Property property);

private:
    Window& owner_;
    Kind kind_;
    std::string name_;
    Control* parent_ = nullptr;
    int parentPage_ = -1;
    Rect bounds_;
    bool enabled_ = true;
    bool visible_ = true;
    ControlObserver* observer_ = nullptr;
};

}  // namespace fw
