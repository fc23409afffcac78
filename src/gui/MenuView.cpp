#include "gui/MenuView.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QString>
#include <QWidget>

#include "shell/MenuBar.h"

namespace {
// The standard Edit command on whichever text control has the focus.
void EditFocused(const QString& name) {
    QWidget* focus = QApplication::focusWidget();
    if (auto* line = qobject_cast<QLineEdit*>(focus)) {
        if (name == "EditUndo") line->undo();
        else if (name == "EditCut") line->cut();
        else if (name == "EditCopy") line->copy();
        else if (name == "EditPaste") line->paste();
        else if (name == "EditClear") line->del();
        else if (name == "EditSelectAll") line->selectAll();
    } else if (auto* area = qobject_cast<QPlainTextEdit*>(focus)) {
        if (name == "EditUndo") area->undo();
        else if (name == "EditCut") area->cut();
        else if (name == "EditCopy") area->copy();
        else if (name == "EditPaste") area->paste();
        else if (name == "EditClear") area->textCursor().removeSelectedText();
        else if (name == "EditSelectAll") area->selectAll();
    }
}
}  // namespace

void InstallMenus(QWidget& window) {
    auto* bar = new QMenu(&window);
    bar->setObjectName("MenuBar1");
    QMenu* current = nullptr;
    for (const MenuItemInfo& item : MenuBar1()) {
        const QString name = QString::fromLatin1(item.name);
        if (*item.menu == '\0') {
            current = bar->addMenu(QString::fromLatin1(item.text));
            current->setObjectName(name);
            continue;
        }
        if (QString::fromLatin1(item.text) == "-") {
            current->addSeparator()->setObjectName(name);
            continue;
        }
        QAction* action = current->addAction(QString::fromLatin1(item.text));
        action->setObjectName(name);
        if (*item.shortcut) action->setShortcut(QKeySequence(QString::fromLatin1(item.shortcut).replace("Cmd+", "Ctrl+")));
        action->setShortcutContext(Qt::WindowShortcut);
        window.addAction(action);
        if (name == "FileQuit") QObject::connect(action, &QAction::triggered, &window, [&window] { window.close(); });
        else QObject::connect(action, &QAction::triggered, &window, [name] { EditFocused(name); });
    }
    window.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&window, &QWidget::customContextMenuRequested, bar,
                     [bar, &window](const QPoint& at) { bar->popup(window.mapToGlobal(at)); });
}
