#include <gtest/gtest.h>

#include <map>
#include <string>

#include "gui/WindowSystem.h"

// Before Qt starts: X11 wherever there is one, so that the target can float; the user's own
// choice stands; no display at all is told, not left to Qt's abort.
TEST(WindowSystem, ChoosesX11WhereThereIsOneAndHonoursTheUsersChoice) {
    struct Case {
        const char* name;
        std::string option;
        std::map<std::string, std::string> environment;
        std::string platform;  // what QT_QPA_PLATFORM becomes; empty: left alone
        bool starts;
    };
    const std::string x11 = "DISPLAY", wayland = "WAYLAND_DISPLAY", own = "QT_QPA_PLATFORM";
    const Case cases[] = {
        {"X11 session", "", {{x11, ":0"}}, "xcb", true},
        {"Wayland session with XWayland", "", {{x11, ":0"}, {wayland, "wayland-0"}}, "xcb", true},
        {"Wayland session without XWayland", "", {{wayland, "wayland-0"}}, "wayland", true},
        {"no display at all", "", {}, "", false},
        {"the user's own wayland", "", {{x11, ":0"}, {wayland, "wayland-0"}, {own, "wayland"}}, "", true},
        {"the user's own list of platforms", "", {{wayland, "wayland-0"}, {own, "xcb;wayland"}}, "", true},
        {"the user's own xcb without X11", "", {{wayland, "wayland-0"}, {own, "xcb"}}, "", false},
        {"the user's offscreen needs no display", "", {{own, "offscreen"}}, "", true},
        {"--platform wayland", "wayland", {{x11, ":0"}, {wayland, "wayland-0"}}, "wayland", true},
        {"--platform over the user's variable", "wayland", {{x11, ":0"}, {wayland, "w"}, {own, "xcb"}}, "wayland", true},
        {"--platform xcb without X11", "xcb", {{wayland, "wayland-0"}}, "xcb", false},
        {"--platform wayland without Wayland", "wayland", {{x11, ":0"}}, "wayland", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const WindowSystem chosen = WindowSystem::Choose(c.option, [&](const char* variable) {
            const auto found = c.environment.find(variable);
            return found == c.environment.end() ? std::string() : found->second;
        });
        EXPECT_EQ(chosen.platform, c.platform);
        EXPECT_EQ(chosen.error.empty(), c.starts) << chosen.error;
    }
}
