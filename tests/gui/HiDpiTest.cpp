#include <gtest/gtest.h>

#include <cmath>

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

#include "gui/WindowView.h"
#include "shell/Window2.h"
#include "window/Window1.h"
#include "QuietPlatform.h"

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
    QuietPlatform platform(GuiHome("hidpi", true));
    Window1 window(platform);
    WindowView view(window, platform);
    window.Open();
    view.show();
    Window2 intro(platform, [] {});
    WindowView introView(intro, platform);
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
