#pragma once
// The binding makers, one per family of control kinds.

#include <memory>

#include "gui/ControlBinding.h"

// A panel whose pages hold other controls.
class PanelBinding : public ControlBinding {
public:
    using ControlBinding::ControlBinding;
    virtual QWidget* Page(int page) const = 0;
    // Window coordinates of a page's top left corner.
    virtual QPoint PageOrigin() const = 0;
};

std::unique_ptr<ControlBinding> MakeButtonBinding(fw::Control& control, QWidget* parent, QPoint origin,
                                                  QtPlatform& platform);
std::unique_ptr<ControlBinding> MakeTextBinding(fw::Control& control, QWidget* parent, QPoint origin,
                                                QtPlatform& platform);
std::unique_ptr<ControlBinding> MakeListBinding(fw::Control& control, QWidget* parent, QPoint origin,
                                                QtPlatform& platform);
