#pragma once
// What `velmora` is asked to do on its command line.

#include <QList>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

struct Options {
    QString home;        // --home DIR: every file under DIR
    QSize size;          // --size WxH: forced after start
    QString screenshot;  // --screenshot FILE: save a picture of the main window and quit
    QString introScreenshot;  // --intro-screenshot FILE: the same of the introduction window
    QList<QPoint> introClicks;  // --intro-click X,Y: clicks on its picture before that
    QStringList pages;   // --page PANEL=N
    QString commands;    // --commands FILE: command lines run after start
    bool drop = false;   // --drop TEXT or --drop-selection
    bool dropSelection = false;
    QString dropText;
    QString run;         // --run "LINES": commands for the running copy, its answer printed
    bool quit = false;   // --quit: end the running copy
    int wait = 60;       // --wait SECONDS: how long a later start waits for a busy running copy
    QString platform;    // --platform xcb|wayland: the window system, over QT_QPA_PLATFORM
    bool help = false;   // --help
    bool version = false;  // --version
    QString error;       // a usage fault, empty when the line was understood

    static Options Parse(const QStringList& arguments);
    // A start that only talks to a running copy (or takes a picture) opens no window of its own.
    bool Solo() const { return !screenshot.isEmpty() || !introScreenshot.isEmpty(); }
};

// The usage lines, printed after a fault on the command line.
extern const char* const kUsage;
// --help: every option, and what native Wayland cannot do.
extern const char* const kHelp;
