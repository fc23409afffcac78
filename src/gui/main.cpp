// velmora: the desktop program. One copy runs for each home folder; a later start hands its
// drop or commands to it and exits. See kUsage for the options.

#include <cstdio>
#include <sstream>

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QTimer>

#include "cli/Commands.h"
#include "framework/EventBoundary.h"
#include "framework/Folders.h"
#include "gui/MenuView.h"
#include "gui/Options.h"
#include "gui/QtPlatform.h"
#include "gui/SingleInstance.h"
#include "gui/WindowView.h"
#include "shell/Window2.h"
#include "window/Window1.h"

namespace {
// The text a desktop shortcut means: the selection under X11, else what was copied.
QString SelectedText() {
    const QString selection = QGuiApplication::clipboard()->text(QClipboard::Selection);
    return selection.isEmpty() ? QGuiApplication::clipboard()->text() : selection;
}

QByteArray RunLines(Commands& commands, const QString& lines) {
    std::ostringstream out, err;
    for (const QString& line : lines.split('\n'))
        if (!commands.Execute(line.toStdString(), out, err)) QTimer::singleShot(0, qApp, &QApplication::quit);
    return QByteArray::fromStdString(out.str() + err.str());
}

void Screenshot(QWidget& view, const QString& file) {
    QTimer::singleShot(600, &view, [&view, file] {
        view.grab().save(file);
        QApplication::quit();
    });
}

void Raise(QWidget& view) {
    view.show();
    view.raise();
    view.activateWindow();
}

// Talks to a running copy; true when one answered and this start is done.
bool HandOver(const Options& options, const SingleInstance& instance) {
    InstanceRequest request;
    if (options.quit) request = {InstanceRequest::Kind::Run, QStringLiteral("quit")};
    else if (!options.run.isEmpty()) request = {InstanceRequest::Kind::Run, options.run};
    else if (options.drop)
        request = {InstanceRequest::Kind::Drop, options.dropSelection ? SelectedText() : options.dropText};
    QByteArray reply;
    if (!instance.SendToRunning(request, &reply)) return false;
    std::fwrite(reply.constData(), 1, static_cast<size_t>(reply.size()), stdout);
    return true;
}
}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setApplicationVersion(QStringLiteral("3.0.0"));
    QApplication::setDesktopFileName(QStringLiteral("org.velmora.Velmora"));
    QApplication::setQuitOnLastWindowClosed(true);

    const Options options = Options::Parse(QApplication::arguments());
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "velmora: %s\n%s", qPrintable(options.error), kUsage);
        return 2;
    }
    SingleInstance instance(options.home);
    if (!options.Solo() && HandOver(options, instance)) return 0;
    if (options.quit) return 0;
    if (!options.run.isEmpty()) {
        std::fprintf(stderr, "velmora: no running copy to take the commands\n");
        return 1;
    }

    fw::FolderSet folders = fw::DesktopFolders(argv[0]);
    if (!options.home.isEmpty()) folders = fw::HomeFolders(options.home.toStdString(), folders.resources);
    QtPlatform platform(folders);
    Window1 window(platform);
    WindowView view(window, platform);
    Commands commands(window, platform);
    InstallMenus(view);
    // The main window opens the first time it is shown, which the introduction window does when
    // it hands over.
    bool opened = false;
    auto showMain = [&] {
        if (!opened) {
            opened = true;
            fw::RunEvent(platform, [&] { window.Open(); });
            if (options.size.isValid()) window.SetSize(options.size.width(), options.size.height());
            for (const QString& page : options.pages) {
                auto* panel = dynamic_cast<fw::PanelControl*>(window.Find(page.section('=', 0, 0).toStdString()));
                if (panel) fw::RunEvent(platform, [&] { panel->SetValue(page.section('=', 1).toInt()); });
            }
            if (!options.commands.isEmpty()) {
                QFile file(options.commands);
                if (file.open(QIODevice::ReadOnly))
                    std::fputs(RunLines(commands, QString::fromUtf8(file.readAll())).constData(), stdout);
            }
        }
        window.Show();
    };
    Window2 intro(platform, showMain);
    WindowView introView(intro, platform);
    // A request for the main window's work passes the introduction as Continue would.
    auto passIntro = [&] {
        if (!intro.IsClosed()) fw::RunEvent(platform, [&] { intro.PushButton2.Push(); });
    };

    // A picture of the main window skips the introduction.
    if (!options.screenshot.isEmpty()) {
        showMain();
        Screenshot(view, options.screenshot);
        return QApplication::exec();
    }
    intro.Open();
    if (!options.introScreenshot.isEmpty()) {
        if (intro.IsClosed()) {
            std::fprintf(stderr, "velmora: the introduction window has handed over; no picture of it\n");
            return 1;
        }
        for (const QPoint& click : options.introClicks)
            fw::RunEvent(platform, [&] { intro.ImageWell1.FireMouseDown(click.x(), click.y()); });
        Screenshot(introView, options.introScreenshot);
        return QApplication::exec();
    }
    instance.Listen([&](const InstanceRequest& request) -> QByteArray {
        switch (request.kind) {
        case InstanceRequest::Kind::Show: Raise(intro.IsClosed() ? static_cast<QWidget&>(view) : introView); return {};
        case InstanceRequest::Kind::Drop: passIntro(); view.DeliverDrop(request.text); return {};
        case InstanceRequest::Kind::Run: passIntro(); return RunLines(commands, request.text);
        }
        return {};
    });
    if (options.drop) {
        passIntro();
        view.DeliverDrop(options.dropSelection ? SelectedText() : options.dropText);
    }
    return QApplication::exec();
}
