#include "gui/ControlBinding.h"

#include <QEvent>
#include <QMouseEvent>

#include "framework/EventBoundary.h"
#include "gui/QtPlatform.h"

ControlBinding::ControlBinding(fw::Control& control, QWidget* widget, QPoint containerOrigin, QtPlatform& platform)
    : platform_(platform), control_(control), widget_(widget), origin_(containerOrigin) {
    widget->setObjectName(QString::fromStdString(control.Name()));
    widget->installEventFilter(this);
    control.SetObserver(this);
}

ControlBinding::~ControlBinding() { control_.SetObserver(nullptr); }

void ControlBinding::Refresh() {
    for (fw::Property property : {fw::Property::Geometry, fw::Property::Enabled, fw::Property::Visible,
                                  fw::Property::Text, fw::Property::Caption, fw::Property::Value, fw::Property::Rows,
                                  fw::Property::ListIndex, fw::Property::Image, fw::Property::Style})
        ControlChanged(control_, property);
}

void ControlBinding::ControlChanged(fw::Control&, fw::Property property) {
    if (!widget_) return;
    ++updating_;
    switch (property) {
    case fw::Property::Geometry: {
        const fw::Rect& r = control_.Bounds();
        widget_->setGeometry(r.Left - origin_.x(), r.Top - origin_.y(), r.Width, r.Height);
        break;
    }
    case fw::Property::Enabled: widget_->setEnabled(control_.Enabled()); break;
    case fw::Property::Visible: widget_->setVisible(control_.Visible()); break;
    default: Update(property); break;
    }
    --updating_;
}

void ControlBinding::Quietly(const std::function<void()>& change) {
    ++updating_;
    change();
    --updating_;
}

void ControlBinding::Deliver(const std::function<void()>& act) {
    ++updating_;
    fw::RunEvent(platform_, act);
    --updating_;
    // What the act changed in this control's own widget was held back: show the model now.
    Refresh();
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget_ && event->type() == QEvent::MouseButtonPress && control_.MouseDown) {
        const QPoint at = static_cast<QMouseEvent*>(event)->position().toPoint();
        bool handled = false;
        fw::RunEvent(platform_, [&] { handled = control_.FireMouseDown(at.x(), at.y()); });
        if (handled) return true;
    } else if (watched == widget_ && event->type() == QEvent::Leave && control_.MouseExit) {
        fw::RunEvent(platform_, [&] { control_.MouseExit(); });
    }
    return QObject::eventFilter(watched, event);
}
