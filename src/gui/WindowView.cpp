#include "gui/WindowView.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>

#include "framework/EventBoundary.h"
#include "gui/Bindings.h"
#include "gui/QtPlatform.h"

WindowView::WindowView(fw::Window& model, QtPlatform& platform)
    : QWidget(nullptr, Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint |
                           (model.Frame == 7 ? Qt::WindowStaysOnTopHint : Qt::Widget)),
      model_(model), platform_(platform) {
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

void WindowView::WindowResized() { setFixedSize(model_.Width(), model_.Height()); }

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
