#include "framework/Controls.h"
#include "framework/Exceptions.h"
#include "framework/Window.h"

namespace fw {

PushButton::PushButton(Window& owner, std::string name, std::string caption)
    : Control(owner, Kind::PushButton, std::move(name)), caption_(std::move(caption)) {}

void PushButton::SetCaption(const std::string& caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Notify(Property::Caption);
}

void PushButton::Push() {
    if (Action) Action();
}

BevelButton::BevelButton(Window& owner, std::string name, std::string caption)
    : Control(owner, Kind::BevelButton, std::move(name)), caption_(std::move(caption)) {}

void BevelButton::SetCaption(const std::string& caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Notify(Property::Caption);
}

void BevelButton::AddRow(const std::string& text) {
    rows_.push_back(text);
    Notify(Property::Rows);
}

void BevelButton::DeleteAllRows() {
    rows_.clear();
    menuValue_ = -1;
    Notify(Property::Rows);
}

const std::string& BevelButton::List(int row) const {
    if (row < 0 || row >= ListCount())
        throw OutOfBoundsException(Name() + ": menu row " + std::to_string(row));
    return rows_[static_cast<size_t>(row)];
}

void BevelButton::SetMenuValue(int row) {
    if (row < -1 || row >= ListCount())
        throw OutOfBoundsException(Name() + ": menu row " + std::to_string(row));
    menuValue_ = row;
}

void BevelButton::Choose(int row) {
    SetMenuValue(row);
    if (Action) Action();
}

ValueControl::ValueControl(Window& owner, Kind kind, std::string name, std::string caption, bool value)
    : Control(owner, kind, std::move(name)), caption_(std::move(caption)), value_(value) {}

void ValueControl::SetCaption(const std::string& caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Notify(Property::Caption);
}

void ValueControl::SetValue(bool value) {
    if (value_ == value) return;
    value_ = value;
    const bool radio = GetKind() == Kind::RadioButton;
    if (radio && value) {
        // The rest of the group turns off quietly: only the button that turned on speaks.
        for (Control* control : Owner().Controls()) {
            if (control == this || control->GetKind() != Kind::RadioButton) continue;
            auto* other = static_cast<ValueControl*>(control);
            if (other->Group == Group && other->value_) {
                other->value_ = false;
                other->Notify(Property::Value);
            }
        }
    }
    Notify(Property::Value);
    if ((!radio || value) && Action) Action();
}

void ValueControl::Click() {
    SetValue(GetKind() == Kind::RadioButton ? true : !value_);
}

}  // namespace fw
