#include "gui/Options.h"

const char* const kUsage =
    "usage: velmora [--home DIR] [--drop TEXT | --drop-selection] [--run COMMANDS] [--quit]\n"
    "               [--wait SECONDS] [--platform xcb|wayland] [--help] [--version]\n"
    "               [--commands FILE] [--size WxH] [--page PANEL=N]... [--screenshot FILE]\n"
    "               [--intro-click X,Y]... [--intro-screenshot FILE]\n";

const char* const kHelp =
    "usage: velmora [OPTION]...\n"
    "Velmora, the science desk accessory: drop a formula, a quantity with units or a search word\n"
    "on its target, and the answer goes to the clipboard. One copy runs for each home; a later\n"
    "start brings its window back, or hands its work to it and exits.\n"
    "\n"
    "  --drop TEXT           drop TEXT on the running window (starting one if none runs)\n"
    "  --drop-selection      drop the selected text (the X11 primary selection, else the\n"
    "                        clipboard); with nothing selected, say so and exit 1\n"
    "  --run COMMANDS        run console commands, one a line, in the running window and print\n"
    "                        their output (see velmora-cli(1) for the commands)\n"
    "  --quit                end the running copy\n"
    "  --wait SECONDS        how long to wait for a running copy that is busy (default 60)\n"
    "  --home DIR            keep every file under DIR: DIR/prefs, DIR/data and DIR/app\n"
    "  --platform NAME       the window system: xcb (X11, also through XWayland) or wayland\n"
    "  --commands FILE       run the console commands of FILE after start\n"
    "  --size WxH            size the main window WxH after start\n"
    "  --page PANEL=N        turn a tab or page panel to page N after start\n"
    "  --screenshot FILE     save a picture of the main window as FILE and quit\n"
    "  --intro-click X,Y     click the introduction's picture at X,Y first (may repeat)\n"
    "  --intro-screenshot FILE  save a picture of the introduction window as FILE and quit\n"
    "  -h, --help            print this help and exit\n"
    "  --version             print the version and exit\n"
    "\n"
    "--drop, --drop-selection, --run and --quit reach a running copy without a display.\n"
    "\n"
    "Wayland: where the session also offers X11 (DISPLAY is set beside WAYLAND_DISPLAY),\n"
    "Velmora runs on X11 through XWayland, so that the target floats above other windows\n"
    "as on X11. QT_QPA_PLATFORM=wayland or --platform wayland runs it natively on Wayland,\n"
    "where the desktop alone places and stacks windows: there the target does not stay\n"
    "above other windows, a later start cannot raise it, give it the focus or bring it\n"
    "back from the taskbar, and the expanded window is not kept on the screen that holds\n"
    "the target.\n"
    "\n"
    "Exit status: 0 when done, 1 when it could not be done (no display, no running copy for\n"
    "--run, nothing selected), 2 for a fault on the command line.\n";

Options Options::Parse(const QStringList& arguments) {
    Options options;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& arg = arguments[i];
        const bool hasValue = i + 1 < arguments.size();
        auto value = [&] { return arguments[++i]; };
        if (arg == QLatin1String("--drop-selection")) {
            options.drop = options.dropSelection = true;
        } else if (arg == QLatin1String("--quit")) {
            options.quit = true;
        } else if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
            options.help = true;
        } else if (arg == QLatin1String("--version")) {
            options.version = true;
        } else if (!hasValue) {
            options.error = QStringLiteral("unknown or incomplete option %1").arg(arg);
        } else if (arg == QLatin1String("--home")) {
            options.home = value();
        } else if (arg == QLatin1String("--size")) {
            const QStringList parts = value().split('x');
            if (parts.size() == 2) options.size = QSize(parts[0].toInt(), parts[1].toInt());
        } else if (arg == QLatin1String("--screenshot")) {
            options.screenshot = value();
        } else if (arg == QLatin1String("--intro-screenshot")) {
            options.introScreenshot = value();
        } else if (arg == QLatin1String("--intro-click")) {
            const QStringList parts = value().split(',');
            if (parts.size() == 2) options.introClicks << QPoint(parts[0].toInt(), parts[1].toInt());
        } else if (arg == QLatin1String("--page")) {
            options.pages << value();
        } else if (arg == QLatin1String("--commands")) {
            options.commands = value();
        } else if (arg == QLatin1String("--drop")) {
            options.drop = true;
            options.dropText = value();
        } else if (arg == QLatin1String("--wait")) {
            bool number = false;
            options.wait = value().toInt(&number);
            if (!number || options.wait < 0) options.error = QStringLiteral("--wait takes a number of seconds");
        } else if (arg == QLatin1String("--platform")) {
            options.platform = value();
            if (options.platform != QLatin1String("xcb") && options.platform != QLatin1String("wayland"))
                options.error = QStringLiteral("--platform takes xcb or wayland");
        } else if (arg == QLatin1String("--run")) {
            options.run = value();
        } else {
            options.error = QStringLiteral("unknown option %1").arg(arg);
        }
    }
    return options;
}
