// velmora: the desktop program. One copy runs for each home folder; a later start hands its
// drop or commands to it and exits. See kUsage for the options.

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <sstream>

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QStyle>
#include <QTimer>
#include <QWindow>

#include "cli/Commands.h"
#include "framework/EventBoundary.h"
#include "framework/Folders.h"
#include "framework/HomeLock.h"
#include "gui/FrameStyle.h"
#include "gui/MenuView.h"
#include "gui/Options.h"
#include "gui/QtPlatform.h"
#include "gui/InstanceAddress.h"
#include "gui/SingleInstance.h"
#include "gui/TerminationSignals.h"
#include "gui/WindowSystem.h"
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

// Brings the window back from the taskbar or another workspace and gives it the focus. A window
// on another workspace is unmapped, and X11 activates no unmapped window: it is shown anew, on
// the workspace in view, where it stood.
void Raise(QWidget& view) {
    if (!view.isMinimized() && view.windowHandle() && !view.windowHandle()->isExposed()) {
        const QPoint at = view.pos();
        view.hide();
        view.move(at);
    }
    view.setWindowState(view.windowState() & ~Qt::WindowMinimized);
    view.show();
    view.raise();
    view.activateWindow();
}

InstanceRequest RequestOf(const Options& options) {
    if (options.quit) return {InstanceRequest::Kind::Run, QStringLiteral("quit")};
    if (!options.run.isEmpty()) return {InstanceRequest::Kind::Run, options.run};
    if (options.dropSelection) return {InstanceRequest::Kind::DropSelection, {}};
    if (options.drop) return {InstanceRequest::Kind::Drop, options.dropText};
    return {};
}

// An empty drop is never made: a shortcut pressed with nothing selected says so instead.
const char* const kNothingSelected = "velmora: nothing is selected; nothing was dropped\n";

std::string Environment(const char* variable) {
    const char* value = std::getenv(variable);
    return value ? value : "";
}
}  // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
    const Options options = Options::Parse(arguments);
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "velmora: %s\n%s", qPrintable(options.error), kUsage);
        return 2;
    }
    if (options.help) {
        std::fputs(kHelp, stdout);
        return 0;
    }
    if (options.version) {
        std::puts("velmora 3.0.0");
        return 0;
    }
    if (options.drop && !options.dropSelection && options.dropText.isEmpty()) {
        std::fputs("velmora: the text to drop is empty; nothing was dropped\n", stderr);
        return 1;
    }

    fw::FolderSet folders = fw::DesktopFolders(argv[0]);
    if (!options.home.isEmpty()) folders = fw::HomeFolders(options.home.toStdString(), folders.resources);
    // A picture of the window is taken beside a running copy and leaves the home alone.
    std::optional<fw::HomeLock> lock;
    std::string socketPath;
    if (!options.Solo()) {
        lock.emplace(folders.application);
        const std::filesystem::path runtime = PrivateRuntimeFolder();
        if (!runtime.empty()) socketPath = InstanceSocketPath(runtime, folders);
        if (!lock->Held()) {
            const int status = HandOver(socketPath, RequestOf(options), options.wait, lock->Holder(), [&] {
                lock.emplace(folders.application);
                return lock->Held();
            });
            if (status != kHomeTaken) return status;
        }
        fw::RemoveStaleTemporaries(folders);
    }
    if (options.quit) return 0;
    if (!options.run.isEmpty()) {
        std::fprintf(stderr, "velmora: no running copy to take the commands\n");
        return 1;
    }
    // Qt would abort without a display to show on: say so and end.
    const WindowSystem system = WindowSystem::Choose(options.platform.toStdString(), Environment);
    if (!system.error.empty()) {
        std::fprintf(stderr, "velmora: %s\n", system.error.c_str());
        return 1;
    }
    if (!system.platform.empty()) qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString(system.platform));

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velmora"));
    QApplication::setApplicationVersion(QStringLiteral("3.0.0"));
    QApplication::setDesktopFileName(QStringLiteral("org.velmora.Velmora"));
    QApplication::setQuitOnLastWindowClosed(true);
    QApplication::setStyle(new FrameStyle(QApplication::style()->name()));
    if (options.dropSelection && SelectedText().isEmpty()) {
        std::fputs(kNothingSelected, stderr);
        return 1;
    }

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
    SingleInstance instance;
    if (!socketPath.empty())
        instance.Listen(socketPath, [&](const InstanceRequest& request) -> InstanceReply {
            switch (request.kind) {
            case InstanceRequest::Kind::Show:
                Raise(intro.IsClosed() ? static_cast<QWidget&>(view) : introView);
                return {};
            case InstanceRequest::Kind::Drop: passIntro(); view.DeliverDrop(request.text); return {};
            case InstanceRequest::Kind::DropSelection: {
                const QString text = SelectedText();
                if (text.isEmpty()) return {false, kNothingSelected};
                passIntro();
                view.DeliverDrop(text);
                return {};
            }
            case InstanceRequest::Kind::Run: passIntro(); return {true, RunLines(commands, request.text)};
            }
            return {};
        });
    // A message box that is up is closed first, so that the window does not close beneath the
    // handler that showed it.
    std::function<void()> end = [&] {
        if (QWidget* box = QApplication::activeModalWidget()) {
            box->close();
            QTimer::singleShot(100, qApp, end);
            return;
        }
        RunLines(commands, QStringLiteral("quit"));
    };
    EndOnTerminationSignals(end);
    if (options.drop) {
        passIntro();
        view.DeliverDrop(options.dropSelection ? SelectedText() : options.dropText);
    }
    return QApplication::exec();
}
