// The widgets driven as a user drives them, with mouse and key events at their real places:
// what the screen shows and what the model holds must stay one state.

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QTreeWidget>

#include "Screen.h"

namespace {
TEST(RealInput, FormulaTicksAreOneStateOnScreenAndInTheModel) {
    Screen s("gui-input");
    s.Show();
    s.Expand(6);  // Evaluate shows the stored formulas
    for (const char* formula : {"x^2:", "sqrt(x):", "2*x:"}) s.window.Listbox3.AddRow(formula);
    auto* list = s.widget<QTreeWidget>("Listbox3");
    ASSERT_TRUE(list && list->isVisible());
    const QRect cell = list->visualRect(list->model()->index(1, 1));
    struct Click {
        QPoint at;
        bool ticked;
    };
    // On the box itself, then beside it in the same cell: each click turns the tick over once.
    const Click clicks[] = {{cell.topLeft() + QPoint(10, cell.height() / 2), true},
                            {cell.center() + QPoint(cell.width() / 4, 0), false}};
    for (const Click& click : clicks) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, click.at);
        EXPECT_EQ(s.window.Listbox3.CellCheck(1, 1), click.ticked);
        EXPECT_EQ(list->topLevelItem(1)->checkState(1) == Qt::Checked, click.ticked);
    }
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_TRUE(s.window.Listbox3.CellCheck(1, 1));
    EXPECT_EQ(list->topLevelItem(1)->checkState(1), Qt::Checked);
    // Delete removes what the screen shows ticked.
    s.window.PushButton46.Push();
    EXPECT_EQ(s.window.Listbox3.ListCount(), 2);
    EXPECT_EQ(s.window.Listbox3.Cell(1, 0), "2*x:");
}

TEST(RealInput, TypingGoesOnBehindASoftKey) {
    Screen s("gui-input");
    s.Show();
    s.Expand(0);  // Calculate
    auto* field = s.widget<QPlainTextEdit>("EditField4");
    auto* plus = s.widget<QPushButton>("PushButton16");
    ASSERT_TRUE(field && plus && field->isVisible());
    QTest::mouseClick(field->viewport(), Qt::LeftButton);
    QTest::keyClicks(field, "1");
    QTest::mouseClick(plus, Qt::LeftButton);
    QCoreApplication::processEvents();  // as the event loop does before the next key comes
    QTest::keyClicks(field, "2");
    EXPECT_EQ(s.window.EditField4.Text(), "1+2");
    EXPECT_EQ(field->toPlainText(), "1+2");
}

TEST(RealInput, TheSmallWindowOpensItsMenuFromTheKeyboard) {
    Screen s("gui-input");
    s.Show();
    auto* actions = s.widget<QToolButton>("BevelButton1");
    ASSERT_TRUE(actions);
    EXPECT_EQ(actions->focusPolicy(), Qt::StrongFocus);
    s.window.BevelButton1.SetCaption("Physical Data");
    EXPECT_TRUE(actions->text().startsWith("Phys")) << actions->text().toStdString();
    QTimer::singleShot(0, [actions] {
        EXPECT_TRUE(actions->menu()->isVisible());
        actions->menu()->close();
    });
    QTest::keyClick(actions, Qt::Key_Return);
}
}  // namespace
