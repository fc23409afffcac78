#include "gui/Options.h"

const char* const kUsage =
    "usage: velmora [--home DIR] [--drop TEXT | --drop-selection] [--run COMMANDS] [--quit]\n"
    "               [--wait SECONDS] [--help] [--version]\n"
    "               [--commands FILE] [--size WxH] [--page PANEL=N]... [--screenshot FILE]\n"
    "               [--intro-click X,Y]... [--intro-screenshot FILE]\n";

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
        } else if (arg == QLatin1String("--run")) {
            options.run = value();
        } else {
            options.error = QStringLiteral("unknown option %1").arg(arg);
        }
    }
    return options;
}
