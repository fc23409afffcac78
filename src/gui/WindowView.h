#pragma once
// The real window of a model window: one widget per model control, built by one generic
// renderer, at the control's place on its panel page. Text dropped anywhere on it reaches the
// model's Event_DropObject.

#include <memory>
#include <optional>
#include <vector>

#include <QWidget>

#include "framework/Window.h"
#include "gui/ControlBinding.h"

class QtPlatform;

class WindowView : public QWidget, public fw::WindowObserver {
public:
    WindowView(fw::Window& model, QtPlatform& platform);
    ~WindowView() override;

    fw::Window& Model() const { return model_; }
    // The binding of a control by its model name, or nullptr.
    ControlBinding* BindingFor(const std::string& name) const;
    // Text dropped on the window, however it came.
    void DeliverDrop(const QString& text);

    void WindowResized() override;
    void WindowShown(bool visible) override;
    void WindowClosed() override;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Build();
    fw::Window& model_;
    QtPlatform& platform_;
    std::vector<std::unique_ptr<ControlBinding>> bindings_;
    // Where the user had put the window before it grew, and its size then: shrinking back to that
    // size returns it there.
    std::optional<QRect> home_;
};
