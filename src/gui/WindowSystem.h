#pragma once
// Which of Qt's window systems the window runs on, settled before QApplication exists.
//
// Only an X11 window can float above every other window and be raised by a later start, so a
// Wayland session that also offers XWayland (DISPLAY beside WAYLAND_DISPLAY) runs on X11. The
// user's own QT_QPA_PLATFORM, or --platform, still chooses.

#include <functional>
#include <string>

struct WindowSystem {
    // For QT_QPA_PLATFORM; empty: the user's own setting stands.
    std::string platform;
    // Why no window can be shown, empty when one can.
    std::string error;

    // `option` is --platform's value or empty; `environment` reads a variable, "" when unset.
    static WindowSystem Choose(const std::string& option,
                               const std::function<std::string(const char*)>& environment);
};
