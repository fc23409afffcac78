#include <gtest/gtest.h>

#include <cmath>

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

#include "gui/WindowView.h"
#include "shell/Window2.h"
#include "window/Window1.h"
#include "Screen.h"

namespace {
QScreen* ScreenScaledBy(qreal ratio) {
    for (QScreen* screen : QGuiApplication::screens())
        if (screen->devicePixelRatio() == ratio) return screen;
    return nullptr;
}

void MoveOnto(QWidget& view, qreal ratio) {
    QScreen* screen = ScreenScaledBy(ratio);
    ASSERT_NE(screen, nullptr) << "no screen scaled by " << ratio;
    view.move(screen->availableGeometry().topLeft());
    ASSERT_EQ(view.devicePixelRatioF(), ratio);
}

QImage Resource(const char* file) { return QImage(QString::fromStdString((kResources / file).string())); }
}  // namespace

// The @2x pictures show what the plain ones show, at twice the size: the introduction's hot-spots
// are numbers in the plain picture's pixels.
TEST(HiDpiPictures, EachPictureHasAVariantOfTwiceItsSizeShowingTheSame) {
    for (const char* name : {"target", "target2", "fullwindow1", "fullwindow2"}) {
        SCOPED_TRACE(name);
        const char* suffix = std::string(name).rfind("target", 0) == 0 ? "gif" : "jpg";
        const QImage plain = Resource((std::string(name) + "." + suffix).c_str()).convertToFormat(QImage::Format_RGB32);
        const QImage sharp = Resource((std::string(name) + "@2x." + suffix).c_str());
        ASSERT_FALSE(plain.isNull());
        ASSERT_EQ(sharp.size(), plain.size() * 2);
        const QImage shrunk =
            sharp.scaled(plain.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
        double difference = 0;
        for (int y = 0; y < plain.height(); ++y)
            for (int x = 0; x < plain.width(); ++x) {
                const QRgb a = plain.pixel(x, y), b = shrunk.pixel(x, y);
                difference += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
            }
        EXPECT_LT(difference / (plain.width() * plain.height() * 3), 12.0);
    }
}

// On a screen scaled by 1, 1.5 or 2 the target and the introduction's picture have one device
// pixel to each pixel of the picture shown: never enlarged, so never blurred. A window moved to
// another screen gets its pictures anew.
TEST(HiDpiPictures, PicturesMatchTheScreenTheyAreOn) {
    Screen screen("hidpi");
    Window1& window = screen.window;
    WindowView& view = screen.view;
    view.show();
    Window2 intro(screen.platform, [] {});
    WindowView introView(intro, screen.platform);
    intro.Open();
    struct Case {
        WindowView& view;
        const char* well;
        QSize shown;
    };
    for (const Case& c : {Case{view, "ImageWell1", {62, 62}}, Case{introView, "ImageWell1", {600, 493}}}) {
        auto* well = qobject_cast<QLabel*>(c.view.BindingFor(c.well)->Widget());
        for (const qreal ratio : {1.5, 2.0, 1.0}) {
            SCOPED_TRACE(c.view.windowTitle().toStdString() + " at " + std::to_string(ratio));
            MoveOnto(c.view, ratio);
            const QPixmap pixmap = well->pixmap();
            EXPECT_EQ(pixmap.devicePixelRatio(), ratio);
            EXPECT_EQ(pixmap.size(), (QSizeF(c.shown) * ratio).toSize());
        }
    }
    // A picture changed on a scaled screen is fetched for that screen too.
    MoveOnto(view, 2.0);
    window.ImageWell1.SetImage("target2");
    auto* target = qobject_cast<QLabel*>(view.BindingFor("ImageWell1")->Widget());
    EXPECT_EQ(target->pixmap().toImage().convertToFormat(QImage::Format_RGB32),
              Resource("target2@2x.gif").convertToFormat(QImage::Format_RGB32));
}

// At 1.5 a one-pixel frame falls between device pixels; every list and text area on every page
// must still show all four edges of its frame.
TEST(HiDpiFrames, ListsAndTextAreasKeepTheirWholeFrameAtOneAndAHalf) {
    Screen screen("frames");
    Window1& window = screen.window;
    WindowView& view = screen.view;
    view.show();
    MoveOnto(view, 1.5);
    window.ImageWell1.FireMouseDown(30, 40);
    ASSERT_EQ(view.size(), QSize(800, 600));
    int checked = 0;
    for (const int left : {0, 1, 2, 3})
        for (const int right : {0, 1, 2, 3, 4}) {
            window.TabPanel1.SetValue(left);
            window.TabPanel2.SetValue(right);
            const QImage picture = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
            for (QAbstractScrollArea* area : view.findChildren<QAbstractScrollArea*>()) {
                if (!area->isVisibleTo(&view)) continue;
                SCOPED_TRACE(area->objectName().toStdString());
                const QRect r(area->mapTo(&view, QPoint(0, 0)), area->size());
                const QColor frame = area->palette().color(QPalette::Mid);
                // A frame edge shows if a device pixel within one pixel of it has the frame's colour.
                auto shows = [&](QPointF edge, QPointF inwards) {
                    for (double step = -0.5; step <= 1.5; step += 1.0 / 3) {
                        const QPoint at = ((edge + inwards * step) * 1.5).toPoint();
                        if (picture.rect().contains(at) && picture.pixel(at) == frame.rgb()) return true;
                    }
                    return false;
                };
                const QPointF middle = QRectF(r).center();
                EXPECT_TRUE(shows({double(r.left()), middle.y()}, {1, 0})) << "left edge";
                EXPECT_TRUE(shows({double(r.right() + 1), middle.y()}, {-1, 0})) << "right edge";
                EXPECT_TRUE(shows({middle.x(), double(r.top())}, {0, 1})) << "top edge";
                EXPECT_TRUE(shows({middle.x(), double(r.bottom() + 1)}, {0, -1})) << "bottom edge";
                ++checked;
            }
        }
    EXPECT_GT(checked, 20);
}
