#pragma once
// Keeps one model control and its Qt widget in step, both ways: a model change updates the
// widget without echoing back, and a user's act on the widget becomes the model's event,
// delivered through the event boundary.

#include <functional>
#include <memory>

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

#include "framework/Control.h"

class QtPlatform;

class ControlBinding : public QObject, public fw::ControlObserver {
public:
    ControlBinding(fw::Control& control, QWidget* widget, QPoint containerOrigin, QtPlatform& platform);
    ~ControlBinding() override;

    fw::Control& Model() const { return control_; }
    QWidget* Widget() const { return widget_; }
    // Brings the whole widget up to the model.
    void Refresh();

    void ControlChanged(fw::Control& control, fw::Property property) final;

protected:
    virtual void Update(fw::Property property) = 0;
    // Runs a user's act on the model through the event boundary; model echoes are ignored meanwhile.
    void Deliver(const std::function<void()>& act);
    bool Updating() const { return updating_ > 0; }
    // Brings a change of the model to the widget later, outside ControlChanged, as quietly.
    void Quietly(const std::function<void()>& change);
    bool eventFilter(QObject* watched, QEvent* event) override;
    QtPlatform& platform_;

private:
    fw::Control& control_;
    QPointer<QWidget> widget_;
    QPoint origin_;
    int updating_ = 0;
};

// The widget and binding for a control of any kind, as a child of `parent`.
std::unique_ptr<ControlBinding> MakeBinding(fw::Control& control, QWidget* parent, QPoint containerOrigin,
                                            QtPlatform& platform);
