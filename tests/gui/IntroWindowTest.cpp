#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <string>
#include <vector>

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "framework/Folders.h"
#include "gui/FullWindowPicture.h"
#include "gui/QtPlatform.h"
#include "gui/WindowView.h"
#include "shell/Window2.h"
#include "QuietPlatform.h"

namespace {
QImage Picture(const char* name) { return QImage(QString::fromStdString((kResources / name).string())); }
}  // namespace

// Each hot-spot, mapped from the picture back into the real main window, lies on what it names.
TEST(IntroPicture, HotSpotsFallOnWhatTheyName) {
    QuietPlatform platform(GuiHome("intro-gui", true));
    Window1 window(platform);
    WindowView view(window, platform);
    window.Open();
    StageForPicture(window);
    view.show();
    const std::vector<QRect> leftTabs = TabRects(view, "TabPanel1");
    const std::vector<QRect> rightTabs = TabRects(view, "TabPanel2");
    ASSERT_EQ(leftTabs.size(), 4u);
    ASSERT_EQ(rightTabs.size(), 5u);
    const std::vector<PicturePiece> pieces = PictureLayout(leftTabs, rightTabs);

    struct Case {
        const char* control;  // a control by name, or a tab by its caption
        int spot;             // -1: the target's swap area of a plain click
    };
    const Case cases[] = {
        {"BevelButton1", 0}, {"ImageWell1", 1}, {"Settings", 2}, {"Help", 3}, {"Log", 4},
        {"Directions", 5}, {"Welcome", 6}, {"Calculate", 7}, {"Solve", 8}, {"Convert", 9},
        {"Search", 10}, {"PushButton4", 11}, {"PushButton2", 12}, {"PushButton43", 13}, {"PushButton48", 14},
        {"ImageWell1", -1},
    };
    const std::vector<Window2::HotSpot> spots = Window2::HotSpots();
    ASSERT_EQ(spots.size(), 15u);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.control);
        QRectF target;
        if (fw::Control* control = window.Find(c.control)) {
            const fw::Rect& b = control->Bounds();
            target = QRectF(b.Left, b.Top, b.Width, b.Height);
            ASSERT_TRUE(control->Visible());
            if (auto* panel = dynamic_cast<fw::PanelControl*>(control->Parent())) {
                ASSERT_EQ(panel->Value(), control->ParentPage()) << "the picture shows another page";
            }
        } else {
            const fw::TabPanel& panel = c.spot < 6 ? window.TabPanel1 : window.TabPanel2;
            const std::vector<QRect>& tabs = c.spot < 6 ? leftTabs : rightTabs;
            const int tab = c.spot < 6 ? c.spot - 2 : c.spot - 6;
            ASSERT_EQ(panel.Pages()[tab], c.control);
            target = tabs[tab];
        }
        // The picture's own rectangle, its open sides closed by the picture's edges; the target's
        // hot-spot lies below the action menu's.
        QRectF area(0, 46, 55, 46);
        if (c.spot >= 0) {
            const Window2::HotSpot& s = spots[c.spot];
            const double left = s.left == INT_MIN ? 0 : s.left;
            const double top = s.top != INT_MIN ? s.top : c.spot == 1 ? 33 : 0;
            area = QRectF(left, top, s.right - left, s.bottom - top);
        }
        const std::optional<QPointF> centre = PictureToWindow(pieces, area.center());
        ASSERT_TRUE(centre.has_value());
        EXPECT_TRUE(target.contains(*centre)) << "centre maps to " << centre->x() << "," << centre->y();
        int on = 0;
        for (int i = 0; i < 10; ++i)
            for (int j = 0; j < 10; ++j) {
                const QPointF point(area.left() + area.width() * (i + 0.5) / 10,
                                    area.top() + area.height() * (j + 0.5) / 10);
                const std::optional<QPointF> at = PictureToWindow(pieces, point);
                on += at && target.contains(*at);
            }
        EXPECT_GE(on, 50) << "of 100 points of the hot-spot";
    }
}

TEST(IntroPicture, TheTwoPicturesDifferOnlyInTheTarget) {
    const QImage rest = Picture("fullwindow2.jpg"), lit = Picture("fullwindow1.jpg");
    ASSERT_EQ(rest.size(), QSize(600, 493));
    ASSERT_EQ(lit.size(), QSize(600, 493));
    const QColor a = rest.pixelColor(27, 64), b = lit.pixelColor(27, 64);
    EXPECT_GT(std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()), 100);
    EXPECT_EQ(rest.copy(200, 200, 400, 293), lit.copy(200, 200, 400, 293));
}

TEST(IntroWindow, ShowsThePictureAndHandsOver) {
    QuietPlatform platform(GuiHome("intro-gui", false));
    int mainShown = 0;
    Window2 intro(platform, [&] { ++mainShown; });
    WindowView view(intro, platform);
    intro.Open();
    ASSERT_TRUE(view.isVisible());
    EXPECT_EQ(view.windowTitle(), "Velmora Intro.");
    EXPECT_EQ(view.size(), QSize(900, 600));
    EXPECT_EQ(view.minimumSize(), view.maximumSize());
    EXPECT_TRUE(qobject_cast<QPushButton*>(view.BindingFor("PushButton2")->Widget())->isDefault());
    EXPECT_EQ(qobject_cast<QFrame*>(view.BindingFor("Separator1")->Widget())->frameShape(), QFrame::HLine);

    auto* picture = qobject_cast<QLabel*>(view.BindingFor("ImageWell1")->Widget());
    EXPECT_EQ(picture->pixmap().size(), QSize(600, 493));
    const qint64 before = picture->pixmap().cacheKey();
    QTest::mouseClick(picture, Qt::LeftButton, {}, QPoint(20, 60));
    EXPECT_EQ(intro.ImageWell1.Image(), "fullwindow1");
    EXPECT_NE(picture->pixmap().cacheKey(), before);
    EXPECT_EQ(picture->pixmap().size(), QSize(600, 493));

    QTest::mouseClick(qobject_cast<QPushButton*>(view.BindingFor("PushButton1")->Widget()), Qt::LeftButton);
    EXPECT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(mainShown, 1);
    EXPECT_TRUE(intro.IsClosed());
    EXPECT_FALSE(view.isVisible());
    EXPECT_TRUE(std::filesystem::exists(platform.Folders().preferences / "VL3Instr.txt"));
}
