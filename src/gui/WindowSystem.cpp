#include "gui/WindowSystem.h"

#include <sstream>

namespace {
// Qt takes "name[:options]" or a list of such joined by ';', and uses the first that starts.
bool CanStart(const std::string& platforms, const std::function<std::string(const char*)>& environment) {
    std::istringstream list(platforms);
    std::string candidate;
    while (std::getline(list, candidate, ';')) {
        const std::string name = candidate.substr(0, candidate.find(':'));
        if (name == "xcb") {
            if (!environment("DISPLAY").empty()) return true;
        } else if (name.rfind("wayland", 0) == 0) {
            if (!environment("WAYLAND_DISPLAY").empty()) return true;
        } else {
            // offscreen, vnc, eglfs and the like need no display server.
            return true;
        }
    }
    return false;
}
}  // namespace

WindowSystem WindowSystem::Choose(const std::string& option,
                                  const std::function<std::string(const char*)>& environment) {
    WindowSystem chosen;
    const std::string own = environment("QT_QPA_PLATFORM");
    std::string platforms;
    if (!option.empty()) {
        chosen.platform = platforms = option;
    } else if (!own.empty()) {
        platforms = own;
    } else if (!environment("DISPLAY").empty()) {
        chosen.platform = platforms = "xcb";
    } else if (!environment("WAYLAND_DISPLAY").empty()) {
        chosen.platform = platforms = "wayland";
    } else {
        chosen.error = "no display to show the window on (DISPLAY and WAYLAND_DISPLAY are unset)";
        return chosen;
    }
    if (!CanStart(platforms, environment))
        chosen.error = "no display for the window system " + platforms +
                       " (xcb needs DISPLAY, wayland needs WAYLAND_DISPLAY)";
    return chosen;
}
