// The GUI tests run on Qt's offscreen platform with the screens of screens.json: a plain one, one
// scaled by 1.5, one by 2, and one smaller than the expanded window. The style is the program's.

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>

#include "gui/FrameStyle.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" VELMORA_GUI_SCREENS);
    QApplication app(argc, argv);
    QApplication::setStyle(new FrameStyle(QApplication::style()->name()));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
