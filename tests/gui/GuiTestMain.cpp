// The GUI tests run on Qt's offscreen platform with the screens of screens.json: a plain one, one
// scaled by 1.5, one by 2, and one smaller than the expanded window.

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" VELMORA_GUI_SCREENS);
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
