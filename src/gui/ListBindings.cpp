// Lists, pop-up menus, tab and page panels, and timers.

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>

#include "framework/Controls.h"
#include "gui/Bindings.h"

namespace {

class ListboxBinding : public ControlBinding {
public:
    ListboxBinding(fw::Listbox& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : ControlBinding(model, new QTreeWidget(parent), origin, platform), model_(model) {
        tree()->setColumnCount(model.ColumnCount());
        tree()->setHeaderHidden(!model.HasHeading);
        tree()->setRootIsDecorated(false);
        tree()->setUniformRowHeights(true);
        tree()->setSelectionMode(QAbstractItemView::SingleSelection);
        // Check boxes change only through the model, so a click reaches CellClick first, on the
        // box or beside it, and Space ticks the current row's box the same way.
        tree()->installEventFilter(this);
        connect(tree(), &QTreeWidget::itemPressed, this, [this](QTreeWidgetItem* item, int column) {
            const int row = tree()->indexOfTopLevelItem(item);
            if (row >= 0) Deliver([this, row, column] { model_.ClickCell(row, column); });
        });
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == tree() && event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
            const int row = tree()->indexOfTopLevelItem(tree()->currentItem());
            for (int column = 0; row >= 0 && column < model_.ColumnCount(); ++column)
                if (model_.ColumnType(column) == 2) {
                    Deliver([this, row, column] { model_.ClickCell(row, column); });
                    return true;
                }
        }
        return ControlBinding::eventFilter(watched, event);
    }

    void Update(fw::Property property) override {
        if (property == fw::Property::Geometry) SizeColumns();
        if (property == fw::Property::Rows) {
            tree()->clear();
            QList<QTreeWidgetItem*> items;
            for (int row = 0; row < model_.ListCount(); ++row) {
                auto* item = new QTreeWidgetItem;
                // Qt must not tick a box on its own: the model's tick is the only one.
                item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
                for (int column = 0; column < model_.ColumnCount(); ++column) {
                    item->setText(column, QString::fromStdString(model_.Cell(row, column)));
                    if (model_.ColumnType(column) == 2)
                        item->setCheckState(column, model_.CellCheck(row, column) ? Qt::Checked : Qt::Unchecked);
                }
                items.append(item);
            }
            tree()->addTopLevelItems(items);
            SizeColumns();
        }
        if (property == fw::Property::Rows || property == fw::Property::ListIndex) {
            QTreeWidgetItem* current = tree()->topLevelItem(model_.ListIndex());
            tree()->setCurrentItem(current);
            if (!current) tree()->clearSelection();
        }
    }

private:
    // Column widths as "90%,10%" of the list's width.
    void SizeColumns() {
        const QStringList widths = QString::fromStdString(model_.ColumnWidths()).split(',', Qt::SkipEmptyParts);
        const int total = model_.Bounds().Width - 4;
        for (int column = 0; column < widths.size() && column < model_.ColumnCount(); ++column) {
            QString width = widths[column].trimmed();
            const bool percent = width.endsWith('%');
            const int value = width.remove('%').toInt();
            tree()->setColumnWidth(column, percent ? total * value / 100 : value);
        }
    }
    QTreeWidget* tree() const { return static_cast<QTreeWidget*>(Widget()); }
    fw::Listbox& model_;
};

class PopupMenuBinding : public ControlBinding {
public:
    PopupMenuBinding(fw::PopupMenu& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : ControlBinding(model, new QComboBox(parent), origin, platform), model_(model) {
        // A list of dozens of categories or conversions scrolls inside the window instead of
        // running off the screen, as the style's own pop-up would.
        combo()->setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
        combo()->setMaxVisibleItems(14);
        connect(combo(), &QComboBox::activated, this, [this](int row) {
            Deliver([this, row] { model_.SetListIndex(row); });
        });
    }

protected:
    void Update(fw::Property property) override {
        if (property == fw::Property::Rows) {
            combo()->clear();
            for (int row = 0; row < model_.ListCount(); ++row) combo()->addItem(QString::fromStdString(model_.List(row)));
        }
        if (property == fw::Property::Rows || property == fw::Property::ListIndex) combo()->setCurrentIndex(model_.ListIndex());
    }

private:
    QComboBox* combo() const { return static_cast<QComboBox*>(Widget()); }
    fw::PopupMenu& model_;
};

class TabPanelBinding : public PanelBinding {
public:
    TabPanelBinding(fw::TabPanel& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : PanelBinding(model, new QTabWidget(parent), origin, platform), model_(model) {
        for (const std::string& caption : model.Pages()) tabs()->addTab(new QWidget, QString::fromStdString(caption));
        tabs()->tabBar()->installEventFilter(this);
    }
    QWidget* Page(int page) const override { return tabs()->widget(page); }
    QPoint PageOrigin() const override {
        return QPoint(model_.Bounds().Left + kTabFrame, model_.Bounds().Top + kTabBarHeight);
    }

protected:
    // A click on a tab reaches MouseDown with its x, then the change; the model moves the tab.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == tabs()->tabBar() && event->type() == QEvent::MouseButtonPress) {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (mouse->button() != Qt::LeftButton) return true;
            const QPoint at = mouse->position().toPoint();
            const int page = tabs()->tabBar()->tabAt(at);
            const int x = tabs()->tabBar()->mapTo(tabs(), at).x();
            Deliver([&] {
                if (page < 0 || page == model_.Value()) model_.FireMouseDown(x, at.y());
                else model_.ClickTab(page, x);
            });
            return true;
        }
        return ControlBinding::eventFilter(watched, event);
    }

    void Update(fw::Property property) override {
        if (property == fw::Property::Value) tabs()->setCurrentIndex(model_.Value());
    }

private:
    static constexpr int kTabFrame = 4;
    static constexpr int kTabBarHeight = 32;
    QTabWidget* tabs() const { return static_cast<QTabWidget*>(Widget()); }
    fw::TabPanel& model_;
};

class PagePanelBinding : public PanelBinding {
public:
    PagePanelBinding(fw::PagePanel& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : PanelBinding(model, new QStackedWidget(parent), origin, platform), model_(model) {
        for (int page = 0; page < model.PageCount(); ++page) stack()->addWidget(new QWidget);
    }
    QWidget* Page(int page) const override { return stack()->widget(page); }
    QPoint PageOrigin() const override { return QPoint(model_.Bounds().Left, model_.Bounds().Top); }

protected:
    void Update(fw::Property property) override {
        if (property == fw::Property::Value) stack()->setCurrentIndex(model_.Value());
    }

private:
    QStackedWidget* stack() const { return static_cast<QStackedWidget*>(Widget()); }
    fw::PagePanel& model_;
};

// A timer has nothing to show; its binding runs a QTimer while the model's Mode says so.
class TimerBinding : public ControlBinding {
public:
    TimerBinding(fw::Timer& model, QWidget* parent, QPoint origin, QtPlatform& platform)
        : ControlBinding(model, new QWidget(parent), origin, platform), model_(model) {
        timer_.setSingleShot(true);
        connect(&timer_, &QTimer::timeout, this, [this] {
            Deliver([this] { model_.Fire(); });
            if (model_.Mode() == 2) timer_.start(model_.Period());
        });
    }

protected:
    void Update(fw::Property property) override {
        if (property != fw::Property::Mode) return;
        if (model_.Mode() == 0) timer_.stop();
        else timer_.start(model_.Period());
    }

private:
    fw::Timer& model_;
    QTimer timer_;
};

}  // namespace

std::unique_ptr<ControlBinding> MakeListBinding(fw::Control& control, QWidget* parent, QPoint origin,
                                                QtPlatform& platform) {
    switch (control.GetKind()) {
    case fw::Kind::Listbox:
        return std::make_unique<ListboxBinding>(static_cast<fw::Listbox&>(control), parent, origin, platform);
    case fw::Kind::PopupMenu:
        return std::make_unique<PopupMenuBinding>(static_cast<fw::PopupMenu&>(control), parent, origin, platform);
    case fw::Kind::TabPanel:
        return std::make_unique<TabPanelBinding>(static_cast<fw::TabPanel&>(control), parent, origin, platform);
    case fw::Kind::PagePanel:
        return std::make_unique<PagePanelBinding>(static_cast<fw::PagePanel&>(control), parent, origin, platform);
    case fw::Kind::Timer:
        return std::make_unique<TimerBinding>(static_cast<fw::Timer&>(control), parent, origin, platform);
    default: return nullptr;
    }
}
