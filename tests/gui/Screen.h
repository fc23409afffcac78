#pragma once
// The main window on Qt's quiet desktop, opened on a home with the shipped data, and its
// widgets by the names of their controls.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "QuietPlatform.h"
#include "gui/WindowView.h"

struct Screen {
    explicit Screen(const std::string& home = "gui") : platform(GuiHome(home, true)), window(platform), view(window, platform) {
        window.Open();
        EXPECT_EQ(platform.messages, std::vector<std::string>{});
    }
    template <class W>
    W* widget(const char* name) {
        return qobject_cast<W*>(view.BindingFor(name)->Widget());
    }
    void Show() {
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    }
    // Chooses the action and clicks the target, which opens the action's page.
    void Expand(int action) {
        window.BevelButton1.Choose(action);
        QTest::mouseClick(widget<QLabel>("ImageWell1"), Qt::LeftButton);
    }
    QuietPlatform platform;
    Window1 window;
    WindowView view;
};
