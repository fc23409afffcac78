#pragma once
// A window: its size, its title and the controls on it, found by name.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "framework/Control.h"
#include "framework/DragItem.h"

namespace fw {

class WindowObserver {
public:
    virtual ~WindowObserver() = default;
    virtual void WindowResized() {}
    virtual void WindowShown(bool visible) { (void)visible; }
    virtual void WindowClosed() {}
};

class Window {
public:
    explicit Window(std::string title, int width, int height);
    virtual ~Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    const std::string& Title() const { return title_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    void SetWidth(int width);
    void SetHeight(int height);
    void SetSize(int width, int height);

    bool Resizeable = false;
    bool CloseButton = true;
    bool MinimizeButton = true;
    bool MaximizeButton = false;
    int Frame = 0;  // 7: floats above other applications' windows
    int MinWidth = 64, MinHeight = 64;

    // Text may be dropped anywhere on the window once this has been called.
    void AcceptTextDrop() { acceptsTextDrop_ = true; }
    bool AcceptsTextDrop() const { return acceptsTextDrop_; }
    // A drop on the window; `item` is nil for a drag that carries nothing readable.
    virtual void Event_DropObject(const DragItem* item, int action) { (void)item, (void)action; }

    bool IsVisible() const { return visible_; }
    void Show();
    void Hide();
    // Closes the window: the controls' Close events fire, then the window's own.
    void Close();
    bool IsClosed() const { return closed_; }

    // Every control in creation order, and lookup by case-blind name (nullptr if none).
    const std::vector<Control*>& Controls() const { return controls_; }
    Control* Find(std::string_view name) const;

    void SetObserver(WindowObserver* observer) { observer_ = observer; }

    // Called by each control as it is built.
    void Register(Control& control) { controls_.push_back(&control); }

protected:
    // Fires every control's Open event in creation order, then the window's Event_Open.
    void OpenControls();
    virtual void Event_Close() {}

private:
    std::string title_;
    int width_;
    int height_;
    bool acceptsTextDrop_ = false;
    bool visible_ = false;
    bool closed_ = false;
    std::vector<Control*> controls_;
    WindowObserver* observer_ = nullptr;
};

}  // namespace fw
