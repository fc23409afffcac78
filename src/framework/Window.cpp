#include "framework/Window.h"

#include "framework/Text.h"

namespace fw {

Window::Window(std::string title, int width, int height)
    : title_(std::move(title)), width_(width), height_(height) {}

void Window::SetWidth(int width) { SetSize(width, height_); }
void Window::SetHeight(int height) { SetSize(width_, height); }

void Window::SetSize(int width, int height) {
    if (width < MinWidth) width = MinWidth;
    if (height < MinHeight) height = MinHeight;
    if (width == width_ && height == height_) return;
    width_ = width;
    height_ = height;
    if (observer_) observer_->WindowResized();
}

void Window::Show() {
    visible_ = true;
    if (observer_) observer_->WindowShown(true);
}

void Window::Hide() {
    visible_ = false;
    if (observer_) observer_->WindowShown(false);
}

void Window::Close() {
    if (closed_) return;
    closed_ = true;
    for (Control* control : controls_) control->FireClose();
    Event_Close();
    visible_ = false;
    if (observer_) observer_->WindowClosed();
}

Control* Window::Find(std::string_view name) const {
    for (Control* control : controls_)
        if (StrEq(control->Name(), name)) return control;
    return nullptr;
}

void Window::OpenControls() {
    for (Control* control : controls_) control->FireOpen();
}

}  // namespace fw
