#include "WidgetDriver.h"

#include <ostream>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include "framework/Text.h"
#include "gui/ControlBinding.h"

namespace {
// The box of a check box or radio button, where a careful user clicks.
QPoint Indicator(QAbstractButton* button) {
    QStyleOptionButton option;
    option.initFrom(button);
    const bool radio = qobject_cast<QRadioButton*>(button) != nullptr;
    return button->style()
        ->subElementRect(radio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, button)
        .center();
}

void Settle() { QCoreApplication::processEvents(); }
}  // namespace

QWidget* WidgetDriver::OnScreen(const std::string& name, std::ostream& err) const {
    ControlBinding* binding = view_.BindingFor(name);
    QWidget* widget = binding ? binding->Widget() : nullptr;
    if (!widget) err << "error: no such control " << name << "\n";
    else if (!widget->isVisible() || !widget->isEnabled()) err << "error: " << name << " is not there to be used\n";
    else return widget;
    return nullptr;
}

bool WidgetDriver::Choose(const std::string& caption) {
    auto* button = qobject_cast<QToolButton*>(view_.BindingFor("BevelButton1")->Widget());
    QMenu* menu = button->menu();
    for (QAction* action : menu->actions()) {
        if (!fw::StrEq(action->text().toStdString(), caption)) continue;
        // The menu runs a loop of its own while it is open: its row is clicked from there.
        QTimer::singleShot(0, menu, [menu, action] {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        });
        QTest::mouseClick(button, Qt::LeftButton);
        Settle();
        return true;
    }
    return false;
}

void WidgetDriver::Drop(const std::string& text) {
    QMimeData mime;
    mime.setText(QString::fromStdString(text));
    const QPoint at = view_.rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view_, &enter);
    QDropEvent drop(QPointF(at), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view_, &drop);
    Settle();
}

void WidgetDriver::Click(QWidget* widget, const std::string& name, int row, int column) {
    if (auto* tree = qobject_cast<QTreeWidget*>(widget)) {
        const QModelIndex cell = tree->model()->index(row, column);
        tree->scrollTo(cell);
        const QRect rect = tree->visualRect(cell);
        const auto* list = dynamic_cast<fw::Listbox*>(window_.Find(name));
        // A tick column is clicked on its box, at the cell's left.
        const bool box = list && list->ColumnType(column) == 2;
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                          box ? QPoint(rect.left() + 10, rect.center().y()) : rect.center());
    } else if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(row).center());
    } else if (auto* box = qobject_cast<QCheckBox*>(widget)) {
        QTest::mouseClick(box, Qt::LeftButton, {}, Indicator(box));
    } else if (auto* radio = qobject_cast<QRadioButton*>(widget)) {
        QTest::mouseClick(radio, Qt::LeftButton, {}, Indicator(radio));
    } else {
        QTest::mouseClick(widget, Qt::LeftButton);
    }
    Settle();
}

void WidgetDriver::Set(QWidget* widget, const std::string& value) {
    const QString text = QString::fromStdString(value);
    QWidget* keys = widget;
    QWidget* surface = widget;
    if (auto* area = qobject_cast<QPlainTextEdit*>(widget)) surface = area->viewport();
    if (qobject_cast<QLineEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget)) {
        // Into the field, everything in it selected by keys that type nothing, then typed over.
        const bool area = surface != widget;
        QTest::mouseClick(surface, Qt::LeftButton);
        QTest::keyClick(keys, Qt::Key_End, area ? Qt::ControlModifier : Qt::NoModifier);
        QTest::keyClick(keys, Qt::Key_Home, area ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ShiftModifier);
        if (text.isEmpty()) QTest::keyClick(keys, Qt::Key_Delete);
        else QTest::keyClicks(keys, text);
    } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        if (button->isChecked() != fw::StrEq(value, "true")) QTest::mouseClick(button, Qt::LeftButton, {}, Indicator(button));
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        // Opened from the keyboard: a click that opens it would have its release taken for the
        // choice of whatever row lies under it.
        QTest::keyClick(combo, Qt::Key_F4);
        QAbstractItemView* list = combo->view();
        const QModelIndex row = combo->model()->index(static_cast<int>(fw::Val(value)), 0);
        list->scrollTo(row);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(row).center());
    }
    Settle();
}

bool WidgetDriver::Execute(const std::string& line, std::ostream& out, std::ostream& err) {
    const CommandLine parsed(line);
    const std::string& command = parsed.command;

    if (command == "choose") {
        if (!Choose(Unescape(parsed.rest))) err << "error: no action " << parsed.rest << "\n";
    } else if (command == "drop") {
        Drop(Unescape(parsed.rest));
    } else if (command == "push" || command == "click" || command == "set") {
        QWidget* widget = OnScreen(parsed.name, err);
        if (!widget) return true;
        const std::vector<std::string> numbers = fw::Split(fw::Trim(parsed.value), " ");
        const int row = numbers.empty() ? 0 : static_cast<int>(fw::Val(numbers[0]));
        const int column = numbers.size() < 2 ? 0 : static_cast<int>(fw::Val(numbers[1]));
        if (command == "set") Set(widget, parsed.value);
        else Click(widget, parsed.name, row, column);
    } else {
        return commands_.Execute(line, out, err);
    }
    return true;
}
