#pragma once
// The desktop's own style, with one change at fractional scales such as 1.5: lists and text
// areas get a frame one pixel wider, drawn as filled rectangles. A 1-pixel frame there falls
// between device pixels, and the list or text inside, rounded outwards, paints over it.

#include <QProxyStyle>

class FrameStyle : public QProxyStyle {
public:
    // `base` names the style to wrap, as QStyleFactory knows it.
    explicit FrameStyle(const QString& base);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
