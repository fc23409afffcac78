#include "framework/Controls.h"
#include "framework/Exceptions.h"

namespace fw {

PanelControl::PanelControl(Window& owner, Kind kind, std::string name, std::vector<std::string> pages)
    : Control(owner, kind, std::move(name)), pages_(std::move(pages)) {}

void PanelControl::SetValue(int page) {
    if (page < 0 || page >= PageCount())
        throw OutOfBoundsException(Name() + ": page " + std::to_string(page));
    if (page == value_) return;
    value_ = page;
    Notify(Property::Value);
    if (Change) Change();
}

void TabPanel::ClickTab(int page, int x) {
    FireMouseDown(x, 1);
    SetValue(page);
    if (MouseUp) MouseUp(x, 1);
}

PagePanel::PagePanel(Window& owner, std::string name, int pageCount)
    : PanelControl(owner, Kind::PagePanel, std::move(name), std::vector<std::string>(static_cast<size_t>(pageCount))) {}

ImageWell::ImageWell(Window& owner, std::string name, std::string image)
    : Control(owner, Kind::ImageWell, std::move(name)), image_(std::move(image)) {}

void ImageWell::SetImage(const std::string& image) {
    if (image_ == image) return;
    image_ = image;
    Notify(Property::Image);
}

Label::Label(Window& owner, Kind kind, std::string name, std::string text)
    : Control(owner, kind, std::move(name)), text_(std::move(text)) {}

void Label::SetText(const std::string& text) {
    if (text_ == text) return;
    text_ = text;
    Notify(Property::Text);
}

Timer::Timer(Window& owner, std::string name, int period)
    : Control(owner, Kind::Timer, std::move(name)), period_(period) {
    SetVisible(false);
}

void Timer::SetMode(int mode) {
    // Arming again restarts the period, so the service hears of it even without a change.
    mode_ = mode;
    Notify(Property::Mode);
}

void Timer::SetPeriod(int period) {
    period_ = period;
    Notify(Property::Mode);
}

void Timer::Fire() {
    if (mode_ == 0) return;
    if (mode_ == 1) SetMode(0);
    if (Action) Action();
}

}  // namespace fw
