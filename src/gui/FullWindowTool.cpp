// velmora-fullwindow OUTDIR: renders the expanded main window and writes the introduction's two
// pictures of it, fullwindow2.jpg (the target at rest, shown first) and fullwindow1.jpg (the
// target lit). Run on a screen scaled by 2 (QT_SCALE_FACTOR=2), it writes fullwindow2@2x.jpg and
// fullwindow1@2x.jpg. Run it on Qt's offscreen platform; tools/make_fullwindow.sh does.

#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include "framework/EventBoundary.h"
#include "framework/Folders.h"
#include "gui/FullWindowPicture.h"
#include "gui/QtPlatform.h"
#include "gui/WindowView.h"
#include "window/Window1.h"

namespace {
// Messages are written out rather than shown: nobody is there to close a box.
struct ToolPlatform : QtPlatform {
    using QtPlatform::QtPlatform;
    void MsgBox(const std::string& message) override {
        std::fprintf(stderr, "velmora-fullwindow: %s\n", message.c_str());
    }
};

QImage Render(WindowView& view) {
    QApplication::processEvents();
    return view.grab().toImage().convertToFormat(QImage::Format_RGB32);
}
}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: velmora-fullwindow OUTDIR\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    QTemporaryDir home;
    // The user's own preferences and formulas stay out of the picture; the shipped data goes in.
    fw::FolderSet folders =
        fw::HomeFolders(home.path().toStdString(), std::filesystem::path(VELMORA_SOURCE_DATA_DIR) / "resources");
    folders.applicationData = fw::ShippedDataFolder(argv[0]);

    ToolPlatform platform(folders);
    Window1 window(platform);
    WindowView view(window, platform);
    fw::RunEvent(platform, [&] { window.Open(); });
    fw::RunEvent(platform, [&] { StageForPicture(window); });
    view.show();

    const std::vector<PicturePiece> pieces =
        PictureLayout(TabRects(view, "TabPanel1"), TabRects(view, "TabPanel2"));
    const QString title = QString::fromStdString(window.Title());
    const QImage atRest = ComposePicture(Render(view), pieces, title);
    window.ImageWell1.SetImage("target2");
    const QImage lit = ComposePicture(Render(view), pieces, title);

    const QString scale = atRest.devicePixelRatio() > 1 ? QStringLiteral("@%1x").arg(atRest.devicePixelRatio()) : QString();
    bool saved = atRest.save(out.filePath(QStringLiteral("fullwindow2%1.jpg").arg(scale)), "JPG", 92);
    saved = lit.save(out.filePath(QStringLiteral("fullwindow1%1.jpg").arg(scale)), "JPG", 92) && saved;
    if (!saved) std::fprintf(stderr, "velmora-fullwindow: cannot write the pictures to %s\n", argv[1]);
    return saved ? 0 : 1;
}
