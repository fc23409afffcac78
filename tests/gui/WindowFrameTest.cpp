#include <gtest/gtest.h>

#include <functional>

#include <QGuiApplication>
#include <QScreen>

#include "gui/WindowView.h"
#include "shell/Window2.h"
#include "window/Window1.h"
#include "QuietPlatform.h"

namespace {
struct Desk {
    Desk() : platform(GuiHome("frame", true)), window(platform), view(window, platform) {
        window.Open();
        view.show();
    }
    QuietPlatform platform;
    Window1 window;
    WindowView view;
};

// Along one axis: a window that fits lies wholly on the screen; a larger one starts where the
// screen starts, so that its title bar stays in view.
bool KeptOn(int screenStart, int screenLength, int start, int length) {
    if (length > screenLength) return start == screenStart;
    return start >= screenStart && start + length <= screenStart + screenLength;
}

void ClickTarget(Window1& window) { window.ImageWell1.FireMouseDown(30, 40); }
void ChooseSettings(Window1& window) { window.BevelButton1.Choose(7); }
}  // namespace

// Each window asks for its own buttons and no maximise button, and keeps the model's size fixed
// in every mode, so that neither the user nor the window manager can resize it.
TEST(WindowFrame, NoMaximiseButtonAndAFixedSizeInEveryMode) {
    Desk desk;
    Window2 intro(desk.platform, [] {});
    WindowView introView(intro, desk.platform);
    struct Case {
        const WindowView& view;
        bool floats;
    };
    for (const Case& c : {Case{desk.view, true}, Case{introView, false}}) {
        SCOPED_TRACE(c.view.windowTitle().toStdString());
        const Qt::WindowFlags flags = c.view.windowFlags();
        // Without CustomizeWindowHint Qt asks the window manager for every button.
        EXPECT_TRUE(flags & Qt::CustomizeWindowHint);
        EXPECT_FALSE(flags & Qt::WindowMaximizeButtonHint);
        EXPECT_TRUE(flags & Qt::WindowMinimizeButtonHint);
        EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
        EXPECT_EQ(bool(flags & Qt::WindowStaysOnTopHint), c.floats);
    }

    const std::pair<std::function<void(Window1&)>, QSize> steps[] = {
        {ClickTarget, {800, 600}},
        {ClickTarget, {64, 96}},
        {ChooseSettings, {350, 600}},
        {ClickTarget, {800, 600}},
        {[](Window1& w) { w.PushButton2.Push(); }, {64, 96}},
    };
    EXPECT_EQ(desk.view.minimumSize(), QSize(64, 96));
    EXPECT_EQ(desk.view.maximumSize(), QSize(64, 96));
    for (const auto& [step, size] : steps) {
        step(desk.window);
        EXPECT_EQ(desk.view.size(), size);
        EXPECT_EQ(desk.view.minimumSize(), size);
        EXPECT_EQ(desk.view.maximumSize(), size);
    }
}

// The small window is put near each corner of each screen and grows: the whole grown window stays
// on the screen that holds the target, moved only as far as it must, and going back to the small
// window returns it to where it was put.
TEST(WindowPlacement, GrowsOntoTheTargetsScreenAndShrinksBackToItsPlace) {
    Desk desk;
    struct Grow {
        const char* how;
        std::function<void(Window1&)> act;
        QSize size;
    };
    const Grow grows[] = {
        {"a click on the target", ClickTarget, {800, 600}},
        {"Settings", ChooseSettings, {350, 600}},
        {"Settings, then the target", [](Window1& w) { ChooseSettings(w), ClickTarget(w); }, {800, 600}},
    };
    const QSize decorations = desk.view.frameGeometry().size() - desk.view.size();
    const QSize small = desk.view.frameGeometry().size();
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect area = screen->availableGeometry();
        const QPoint corners[] = {
            area.topLeft(),
            {area.right() + 1 - small.width(), area.top()},
            {area.left(), area.bottom() + 1 - small.height()},
            {area.right() + 1 - small.width(), area.bottom() + 1 - small.height()},
            area.center(),
        };
        for (const QPoint& corner : corners) {
            for (const Grow& grow : grows) {
                SCOPED_TRACE(screen->name().toStdString() + ", " + std::to_string(corner.x()) + "," +
                             std::to_string(corner.y()) + ", " + grow.how);
                desk.view.move(corner);
                ASSERT_EQ(desk.view.screen(), screen);
                grow.act(desk.window);
                ASSERT_EQ(desk.view.size(), grow.size);
                const QRect frame = desk.view.frameGeometry();
                EXPECT_TRUE(KeptOn(area.left(), area.width(), frame.left(), frame.width())) << "across";
                EXPECT_TRUE(KeptOn(area.top(), area.height(), frame.top(), frame.height())) << "down";
                if (area.contains(QRect(corner, grow.size + decorations))) {
                    EXPECT_EQ(frame.topLeft(), corner) << "moved though it fitted";
                }
                desk.window.PushButton2.Push();
                EXPECT_EQ(desk.view.size(), QSize(64, 96));
                EXPECT_EQ(desk.view.pos(), corner);
            }
        }
    }
}
