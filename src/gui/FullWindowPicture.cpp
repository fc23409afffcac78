#include "gui/FullWindowPicture.h"

#include <QFont>
#include <QPainter>
#include <QTabBar>
#include <QTabWidget>

#include "gui/WindowView.h"
#include "shell/Window2.h"
#include "window/Window1.h"

namespace {
// Window rows that hold nothing but background, where the body is cut into bands that are
// scaled each on its own: above the tabs' pages, below the Welcome tab's e-mail button, and
// above the buttons at the foot of the panels.
constexpr double kTabRowBottom = 30, kBandCut = 150, kFootCut = 548, kWindowBottom = 600;
// In the left column nothing stands between the help note and the Back button.
constexpr double kBackTop = 556;
// The same rows in the picture; the tab row lies on the strip of the tab hot-spots.
constexpr double kTabRowTop = 26, kBodyTop = 52, kBandCutAt = 154, kFootCutAt = 450;
// Columns: the left column, the left tab panel and the right one; in the window, then in the picture.
constexpr double kLeftColumnEnd = 66, kPanelCut = 348, kWindowRight = 800;
constexpr double kLeftColumnEndAt = 56, kLeftPanelAt = 80, kPanelCutAt = 281;

QRectF Span(double left, double top, double right, double bottom) { return {left, top, right - left, bottom - top}; }

// The x edges of the tab hot-spots, from the first tab's left edge to the last tab's right edge.
std::vector<double> TabEdges() {
    const std::vector<Window2::HotSpot> spots = Window2::HotSpots();
    std::vector<double> edges{double(spots[2].left - 1)};
    for (size_t spot = 2; spot <= 10; ++spot) edges.push_back(spots[spot].right);
    return edges;
}
}  // namespace

void StageForPicture(Window1& window) {
    window.SetSize(800, 600);
    window.TabPanel1.SetValue(3);
    window.TabPanel2.SetValue(0);
}

std::vector<QRect> TabRects(const WindowView& view, const char* panel) {
    std::vector<QRect> rects;
    ControlBinding* binding = view.BindingFor(panel);
    auto* tabs = binding ? qobject_cast<QTabWidget*>(binding->Widget()) : nullptr;
    if (!tabs) return rects;
    QTabBar* bar = tabs->tabBar();
    for (int tab = 0; tab < bar->count(); ++tab) {
        const QRect rect = bar->tabRect(tab);
        rects.emplace_back(bar->mapTo(&view, rect.topLeft()), rect.size());
    }
    return rects;
}

std::vector<PicturePiece> PictureLayout(const std::vector<QRect>& leftTabs, const std::vector<QRect>& rightTabs) {
    std::vector<PicturePiece> pieces{
        // The left column at 0.85 of its size in both directions down to the target, so that the
        // target stays round, and as wide below; the Back button at its own size, to fill its hot-spot.
        {Span(0, 0, 64, 30), Span(0, 0, 54, 33)},
        {Span(0, 30, 64, 96), Span(0, 33, 54, 95)},
        {Span(0, 96, kLeftColumnEnd, kBackTop), Span(0, 95, kLeftColumnEndAt, kFootCutAt)},
        {Span(0, kBackTop, kLeftColumnEnd, kWindowBottom), Span(0, kFootCutAt, kLeftColumnEnd, kPictureHeight)},
    };
    const double columns[][4] = {{kLeftColumnEnd, kPanelCut, kLeftPanelAt, kPanelCutAt},
                                 {kPanelCut, kWindowRight, kPanelCutAt, kPictureWidth}};
    const double bands[][4] = {{kTabRowBottom, kBandCut, kBodyTop, kBandCutAt},
                               {kBandCut, kFootCut, kBandCutAt, kFootCutAt},
                               {kFootCut, kWindowBottom, kFootCutAt, kPictureHeight}};
    for (const auto& column : columns)
        for (const auto& band : bands)
            pieces.push_back(
                {Span(column[0], band[0], column[1], band[1]), Span(column[2], band[2], column[3], band[3])});

    // Each tab is fitted to its own hot-spot: the tabs' widths follow the font, the hot-spots do not.
    std::vector<QRect> tabs = leftTabs;
    tabs.insert(tabs.end(), rightTabs.begin(), rightTabs.end());
    const std::vector<double> edges = TabEdges();
    for (size_t tab = 0; tab < tabs.size() && tab + 1 < edges.size(); ++tab) {
        const QRect& rect = tabs[tab];
        pieces.push_back({Span(rect.left(), 0, rect.left() + rect.width(), kTabRowBottom),
                          Span(edges[tab], kTabRowTop, edges[tab + 1], kBodyTop)});
    }
    return pieces;
}

std::optional<QPointF> PictureToWindow(const std::vector<PicturePiece>& pieces, QPointF point) {
    // Later pieces lie on top of earlier ones.
    for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece) {
        const QRectF& to = piece->picture;
        if (point.x() < to.left() || point.x() >= to.right() || point.y() < to.top() || point.y() >= to.bottom())
            continue;
        const QRectF& from = piece->window;
        return QPointF(from.left() + (point.x() - to.left()) * from.width() / to.width(),
                       from.top() + (point.y() - to.top()) * from.height() / to.height());
    }
    return std::nullopt;
}

QImage ComposePicture(const QImage& window, const std::vector<PicturePiece>& pieces, const QString& title) {
    // A rendering on a scaled screen gives a picture of as many device pixels to a pixel.
    const qreal ratio = window.devicePixelRatio();
    QImage picture(QSize(kPictureWidth, kPictureHeight) * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    // The gap between the left column and the left panel is plain window background.
    const QColor background = window.pixelColor(QPointF(kLeftColumnEnd, 300).toPoint() * ratio);
    picture.fill(background);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::Antialiasing);

    // Above the tabs, where the window has no room of its own, its title bar.
    const QRectF titleBar = Span(kLeftPanelAt, 0, kPictureWidth, kTabRowTop - 2);
    painter.fillRect(titleBar, background.darker(110));
    painter.setPen(background.darker(140));
    painter.drawLine(titleBar.bottomLeft(), titleBar.bottomRight());
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(12);
    painter.setFont(font);
    painter.setPen(QColor(0x30, 0x30, 0x30));
    painter.drawText(titleBar, Qt::AlignCenter, title);

    for (const PicturePiece& piece : pieces) {
        const QRectF from(piece.window.topLeft() * ratio, piece.window.size() * ratio);
        painter.drawImage(piece.picture, window, from);
    }
    return picture;
}
