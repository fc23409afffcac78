// velmora: the desktop program.
//   velmora [--home DIR] [--size WxH] [--screenshot FILE] [--page PANEL=N]...
// --home keeps every file under DIR; --size forces the window to a size after start and
// --screenshot saves a picture of the window and quits, --page turns a panel to a page (for
// pictures of the layout).

#include <QApplication>
#include <QStringList>
#include <QTimer>

#include "framework/EventBoundary.h"
#include "framework/Folders.h"
#include "gui/MenuView.h"
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
    QString screenshot;
    QStringList pages;
    for (int i = 1; i + 1 < args.size(); ++i) {
        if (args[i] == QLatin1String("--home")) {
            const std::filesystem::path resources = folders.resources;
            folders = fw::HomeFolders(args[i + 1].toStdString());
            folders.resources = resources;
        } else if (args[i] == QLatin1String("--size")) {
            const QStringList parts = args[i + 1].split('x');
            if (parts.size() == 2) forcedSize = QSize(parts[0].toInt(), parts[1].toInt());
        } else if (args[i] == QLatin1String("--screenshot")) {
            screenshot = args[i + 1];
        } else if (args[i] == QLatin1String("--page")) {
            pages << args[i + 1];
        }
    }

    QtPlatform platform(folders);
    Window1 window(platform);
    WindowView view(window, platform);
    InstallMenus(view);
    fw::RunEvent(platform, [&] { window.Open(); });
    if (forcedSize.isValid()) window.SetSize(forcedSize.width(), forcedSize.height());
    for (const QString& page : pages) {
        auto* panel = dynamic_cast<fw::PanelControl*>(window.Find(page.section('=', 0, 0).toStdString()));
        if (panel) fw::RunEvent(platform, [&] { panel->SetValue(page.section('=', 1).toInt()); });
    }
    view.show();
    if (!screenshot.isEmpty()) {
        QTimer::singleShot(600, &view, [&] {
            view.grab().save(screenshot);
            QApplication::quit();
        });
    }
    return QApplication::exec();
}
