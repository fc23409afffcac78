// velmora: the desktop program.
//   velmora [--home DIR] [--size WxH]
// --home keeps every file under DIR; --size forces the window to a size after start (for
// pictures of the expanded layout).

#include <QApplication>
#include <QStringList>

#include "framework/EventBoundary.h"
#include "framework/Folders.h"
#include "gui/QtPlatform.h"
#include "gui/WindowView.h"
#include "window/Window1.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setApplicationVersion(QStringLiteral("3.0.0"));
    QApplication::setQuitOnLastWindowClosed(true);

    const QStringList args = QApplication::arguments();
    fw::FolderSet folders = fw::DesktopFolders(argv[0]);
    QSize forcedSize;
    for (int i = 1; i + 1 < args.size(); ++i) {
        if (args[i] == QLatin1String("--home")) {
            const std::filesystem::path resources = folders.resources;
            folders = fw::HomeFolders(args[i + 1].toStdString());
            folders.resources = resources;
        } else if (args[i] == QLatin1String("--size")) {
            const QStringList parts = args[i + 1].split('x');
            if (parts.size() == 2) forcedSize = QSize(parts[0].toInt(), parts[1].toInt());
        }
    }

    QtPlatform platform(folders);
    Window1 window(platform);
    WindowView view(window, platform);
    fw::RunEvent(platform, [&] { window.Open(); });
    if (forcedSize.isValid()) window.SetSize(forcedSize.width(), forcedSize.height());
    view.show();
    return QApplication::exec();
}
