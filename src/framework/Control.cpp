#include "framework/Control.h"

#include "framework/Window.h"

namespace fw {

const char* KindName(Kind kind) {
    switch (kind) {
    case Kind::PushButton: return "PushButton";
    case Kind::BevelButton: return "BevelButton";
    case Kind::TextField: return "TextField";
    case Kind::TextArea: return "TextArea";
    case Kind::Listbox: return "Listbox";
    case Kind::PopupMenu: return "PopupMenu";
    case Kind::RadioButton: return "RadioButton";
    case Kind::CheckBox: return "CheckBox";
    case Kind::TabPanel: return "TabPanel";
    case Kind::PagePanel: return "PagePanel";
    case Kind::ImageWell: return "ImageWell";
    case Kind::StaticText: return "StaticText";
    case Kind::GroupBox: return "GroupBox";
    case Kind::Separator: return "Separator";
    case Kind::Timer: return "Timer";
    }
    return "Control";
}

Control::Control(Window& owner, Kind kind, std::string name)
    : owner_(owner), kind_(kind), name_(std::move(name)) {
    owner_.Register(*this);
}

void Control::PlaceIn(Control& panel, int page) {
    parent_ = &panel;
    parentPage_ = page;
}

void Control::SetBounds(int left, int top, int width, int height) {
    bounds_ = Rect{left, top, width, height};
    Notify(Property::Geometry);
}

void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Notify(Property::Enabled);
}

void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Notify(Property::Visible);
}

void Control::Notify(Property property) {
    if (observer_) observer_->ControlChanged(*this, property);
}

}  // namespace fw
