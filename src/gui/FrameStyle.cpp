#include "gui/FrameStyle.h"

#include <cmath>

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

namespace {
bool Widened(const QWidget* widget) {
    if (!qobject_cast<const QAbstractScrollArea*>(widget)) return false;
    const qreal ratio = widget->devicePixelRatioF();
    return ratio != std::floor(ratio);
}
}  // namespace

FrameStyle::FrameStyle(const QString& base) : QProxyStyle(base) {}

int FrameStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int value = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_DefaultFrameWidth && Widened(widget) ? value + 1 : value;
}

void FrameStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    if (element != PE_Frame || !Widened(widget)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    // Filled rectangles cover every device pixel whose centre they hold, so each edge keeps at
    // least one pixel; the inner ring, in the list's own colour, keeps the list off the edge.
    painter->fillRect(option->rect, option->palette.mid());
    painter->fillRect(option->rect.adjusted(1, 1, -1, -1), option->palette.base());
}
