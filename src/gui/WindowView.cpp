#include "gui/WindowView.h"

#include <algorithm>

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScreen>

#include "framework/EventBoundary.h"
#include "gui/Bindings.h"
#include "gui/QtPlatform.h"

namespace {
// The window manager is asked for exactly the buttons the model's window has.
Qt::WindowFlags FlagsOf(const fw::Window& model) {
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (model.CloseButton) flags |= Qt::WindowCloseButtonHint;
    if (model.MinimizeButton) flags |= Qt::WindowMinimizeButtonHint;
    if (model.MaximizeButton) flags |= Qt::WindowMaximizeButtonHint;
    if (model.Frame == 7) flags |= Qt::WindowStaysOnTopHint;
    return flags;
}

// Where a window frame stands once moved onto `area` as little as it takes; a frame larger than
// the area keeps its top left corner, and so its title bar, in view.
QPoint KeptOn(const QRect& area, QRect frame) {
    frame.moveRight(std::min(frame.right(), area.right()));
    frame.moveBottom(std::min(frame.bottom(), area.bottom()));
    frame.moveLeft(std::max(frame.left(), area.left()));
    frame.moveTop(std::max(frame.top(), area.top()));
    return frame.topLeft();
}
}  // namespace

WindowView::WindowView(fw::Window& model, QtPlatform& platform)
    : QWidget(nullptr, FlagsOf(model)), model_(model), platform_(platform) {
    setWindowTitle(QString::fromStdString(model.Title()));
    setAcceptDrops(true);
    Build();
    model.SetObserver(this);
    WindowResized();
}

WindowView::~WindowView() {
    model_.SetObserver(nullptr);
    bindings_.clear();
}

void WindowView::Build() {
    for (fw::Control* control : model_.Controls()) {
        QWidget* container = this;
        QPoint origin(0, 0);
        if (fw::Control* panel = control->Parent()) {
            auto* panelBinding = dynamic_cast<PanelBinding*>(BindingFor(panel->Name()));
            if (panelBinding && panelBinding->Page(control->ParentPage())) {
                container = panelBinding->Page(control->ParentPage());
                origin = panelBinding->PageOrigin();
            }
        }
        std::unique_ptr<ControlBinding> binding = MakeButtonBinding(*control, container, origin, platform_);
        if (!binding) binding = MakeTextBinding(*control, container, origin, platform_);
        if (!binding) binding = MakeListBinding(*control, container, origin, platform_);
        if (binding) bindings_.push_back(std::move(binding));
    }
    for (auto& binding : bindings_) {
        binding->Refresh();
        // Group boxes are frames drawn behind the buttons they hold.
        if (binding->Model().GetKind() == fw::Kind::GroupBox) binding->Widget()->lower();
    }
    // Every drop lands on the window itself, whatever widget lies under the pointer.
    for (QWidget* child : findChildren<QWidget*>()) child->setAcceptDrops(false);
}

ControlBinding* WindowView::BindingFor(const std::string& name) const {
    for (const auto& binding : bindings_)
        if (binding->Model().Name() == name) return binding.get();
    return nullptr;
}

// The size is the model's alone: the user cannot resize the window. A window that grows stays
// whole on the screen that holds it, and goes back where it was when it shrinks again.
void WindowView::WindowResized() {
    const QSize next(model_.Width(), model_.Height());
    const QSize before = size();
    const QRect frame = frameGeometry();
    setFixedSize(next);
    if (!isVisible()) return;
    if (!home_ && next.width() * next.height() > before.width() * before.height()) home_ = QRect(pos(), before);
    if (!home_) return;
    if (next == home_->size()) {
        move(home_->topLeft());
        home_.reset();
        return;
    }
    const QScreen* screen = QGuiApplication::screenAt(frame.center());
    const QSize decorations = frame.size() - before;
    move(KeptOn((screen ? screen : this->screen())->availableGeometry(), QRect(frame.topLeft(), next + decorations)));
}

void WindowView::WindowShown(bool visible) { setVisible(visible); }

void WindowView::WindowClosed() {
    if (isVisible()) close();
}

void WindowView::dragEnterEvent(QDragEnterEvent* event) {
    if (model_.AcceptsTextDrop() && event->mimeData()->hasText()) event->acceptProposedAction();
}

void WindowView::dragMoveEvent(QDragMoveEvent* event) {
    if (model_.AcceptsTextDrop() && event->mimeData()->hasText()) event->acceptProposedAction();
}

void WindowView::dropEvent(QDropEvent* event) {
    if (!event->mimeData()->hasText()) return;
    event->acceptProposedAction();
    DeliverDrop(event->mimeData()->text());
}

void WindowView::DeliverDrop(const QString& text) {
    fw::DragItem item{true, text.toStdString()};
    fw::RunEvent(platform_, [&] { model_.Event_DropObject(&item, 0); });
}

void WindowView::closeEvent(QCloseEvent* event) {
    if (!model_.IsClosed()) fw::RunEvent(platform_, [this] { model_.Close(); });
    event->accept();
}
