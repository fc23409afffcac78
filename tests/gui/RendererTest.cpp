#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "framework/Folders.h"
#include "gui/QtPlatform.h"
#include "gui/WindowView.h"
#include "Screen.h"

namespace {

const char* ExpectedClass(fw::Kind kind) {
    switch (kind) {
    case fw::Kind::PushButton: return "QPushButton";
    case fw::Kind::BevelButton: return "QToolButton";
    case fw::Kind::TextField: return "QLineEdit";
    case fw::Kind::TextArea: return "QPlainTextEdit";
    case fw::Kind::Listbox: return "QTreeWidget";
    case fw::Kind::PopupMenu: return "QComboBox";
    case fw::Kind::RadioButton: return "QRadioButton";
    case fw::Kind::CheckBox: return "QCheckBox";
    case fw::Kind::TabPanel: return "QTabWidget";
    case fw::Kind::PagePanel: return "QStackedWidget";
    case fw::Kind::ImageWell: return "QLabel";
    case fw::Kind::StaticText: return "QLabel";
    case fw::Kind::GroupBox: return "QGroupBox";
    case fw::Kind::Separator: return "QFrame";
    case fw::Kind::Timer: return "QWidget";
    }
    return "";
}
}  // namespace

TEST(Renderer, EveryControlHasAWidgetOfItsKindOnItsPage) {
    Screen screen;
    for (fw::Control* control : screen.window.Controls()) {
        ControlBinding* binding = screen.view.BindingFor(control->Name());
        ASSERT_NE(binding, nullptr) << control->Name();
        QWidget* widget = binding->Widget();
        EXPECT_STREQ(widget->metaObject()->className(), ExpectedClass(control->GetKind())) << control->Name();
        if (fw::Control* panel = control->Parent()) {
            auto* page = widget->parentWidget();
            QWidget* panelWidget = screen.view.BindingFor(panel->Name())->Widget();
            EXPECT_TRUE(panelWidget->isAncestorOf(page)) << control->Name();
            if (auto* tabs = qobject_cast<QTabWidget*>(panelWidget)) {
                EXPECT_EQ(tabs->indexOf(page), control->ParentPage());
            }
        } else {
            EXPECT_EQ(widget->parentWidget(), &screen.view) << control->Name();
        }
    }
}

TEST(Renderer, ModelChangesReachWidgetsWithoutEcho) {
    Screen screen;
    int changes = 0;
    screen.window.EditField5.TextChange = [&] { ++changes; };
    screen.window.EditField5.SetText("42 ");
    EXPECT_EQ(screen.widget<QLineEdit>("EditField5")->text(), "42 ");
    EXPECT_EQ(changes, 1);
    // A text area takes a line as it is logged once it is on screen; a hidden one catches up
    // when it is shown.
    screen.window.LogLine("appended");
    screen.view.show();
    auto* pages = screen.widget<QTabWidget>("TabPanel1");
    for (int page = 0; page < pages->count(); ++page)
        if (pages->tabText(page) == "Log") screen.window.TabPanel1.SetValue(page);
    QCoreApplication::processEvents();
    EXPECT_TRUE(screen.widget<QPlainTextEdit>("EditField2")->toPlainText().endsWith("appended\n"));
    screen.window.LogLine("appended again");
    EXPECT_TRUE(screen.widget<QPlainTextEdit>("EditField2")->toPlainText().endsWith("appended again\n"));
    screen.window.TabPanel2.SetValue(2);
    EXPECT_EQ(screen.widget<QTabWidget>("TabPanel2")->currentIndex(), 2);
    screen.window.SetSize(800, 600);
    EXPECT_EQ(screen.view.size(), QSize(800, 600));
}

TEST(Renderer, UserActsReachTheModelOnce) {
    Screen screen;
    screen.window.SetSize(800, 600);
    screen.view.show();
    screen.window.TabPanel2.SetValue(1);
    QTest::mouseClick(screen.widget<QPushButton>("PushButton7"), Qt::LeftButton);
    EXPECT_EQ(screen.window.EditField4.Text(), "2");
    QTest::mouseClick(screen.widget<QCheckBox>("CheckBox2"), Qt::LeftButton);
    EXPECT_TRUE(screen.window.CheckBox2.Value());
    EXPECT_NE(screen.window.EditField2.Text().find("Chose use clipboard for conversions.\n"), std::string::npos);

    int keys = 0;
    screen.window.A1.KeyDown = [&](const std::string&) { return ++keys, false; };
    QLineEdit* a1 = screen.widget<QLineEdit>("A1");
    screen.window.TabPanel2.SetValue(2);
    a1->setFocus();
    QTest::keyClicks(a1, "12");
    EXPECT_EQ(keys, 2);
    EXPECT_EQ(screen.window.A1.Text(), "12");

    QTabBar* bar = screen.widget<QTabWidget>("TabPanel2")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(3).center());
    EXPECT_EQ(screen.window.TabPanel2.Value(), 3);
    EXPECT_EQ(screen.window.BevelButton1.Caption(), "Convert");
    EXPECT_NE(screen.window.EditField2.Text().find(">>Tab 3 chosen\n"), std::string::npos);
}

TEST(Renderer, TextDroppedReachesTheDropHandler) {
    Screen screen;
    screen.view.DeliverDrop(QStringLiteral("2+3"));
    EXPECT_EQ(screen.window.EditField5.Text(), "5 ");
    EXPECT_EQ(screen.widget<QLineEdit>("EditField5")->text(), "5 ");
    EXPECT_EQ(QApplication::clipboard()->text(), "5 ");
    // Child widgets leave every drop to the window.
    for (QWidget* child : screen.view.findChildren<QWidget*>()) EXPECT_FALSE(child->acceptDrops());
}
