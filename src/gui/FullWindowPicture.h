#pragma once
// The pictures of the expanded main window that the introduction window shows. They are made
// from the real window's rendering, cut into pieces and laid out so that every hot-spot of the
// introduction falls on the part it explains: the hot-spots are fixed numbers, so the picture is
// drawn to them, not the other way round.

#include <optional>
#include <vector>

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QRectF>

class WindowView;
class Window1;

struct PicturePiece {
    QRectF window;   // in the main window's coordinates
    QRectF picture;  // where it lands in the picture
};

inline constexpr int kPictureWidth = 600;
inline constexpr int kPictureHeight = 493;

// Puts the main window into the state the pictures show: expanded to 800 by 600, the Directions
// tab on the left (it holds More Instructions), the Welcome tab on the right.
void StageForPicture(Window1& window);

// The tabs of one of the view's tab panels, in window coordinates, in tab order.
std::vector<QRect> TabRects(const WindowView& view, const char* panel);

// The pieces for a main window whose tabs stand at these rectangles.
std::vector<PicturePiece> PictureLayout(const std::vector<QRect>& leftTabs, const std::vector<QRect>& rightTabs);

// The point of the window that a point of the picture shows, or nothing where the picture shows
// no part of the window.
std::optional<QPointF> PictureToWindow(const std::vector<PicturePiece>& pieces, QPointF point);

// The picture of `window`, a rendering of the whole main window titled `title`.
QImage ComposePicture(const QImage& window, const std::vector<PicturePiece>& pieces, const QString& title);
