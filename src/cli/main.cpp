// velmora-cli: Velmora without a screen.
//   velmora-cli [--home DIR] [--action CAPTION] [--log] TEXT   drop TEXT, print the clipboard
//   velmora-cli [--home DIR]                                    read commands from standard input
// The introduction window is passed as its Continue button would pass it; --shift holds the
// shift key while it opens.

#include <csignal>
#include <iostream>
#include <string>

#include "cli/Console.h"
#include "framework/Folders.h"
#include "framework/HomeLock.h"

namespace {
volatile std::sig_atomic_t ended = 0;
}

int main(int argc, char** argv) {
    fw::FolderSet folders = fw::DesktopFolders(argv[0]);
    std::string action;
    std::string text;
    bool haveText = false;
    bool printLog = false;
    bool shift = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--home" && i + 1 < argc) {
            folders = fw::HomeFolders(argv[++i], folders.resources);
        } else if (arg == "--action" && i + 1 < argc) {
            action = argv[++i];
        } else if (arg == "--log") {
            printLog = true;
        } else if (arg == "--shift") {
            shift = true;
        } else if (arg == "--help" || arg == "-h") {
            std::cout << "usage: velmora-cli [--home DIR] [--shift] [--action CAPTION] [--log] [TEXT]\n";
            return 0;
        } else {
            text = arg;
            haveText = true;
        }
    }

    // Message boxes and unhandled faults go to standard error as they come, so that a console
    // user learns why no answer came.
    Console console(folders, shift, &std::cerr);
    if (!action.empty() && !console.Choose(action)) {
        std::cerr << "error: no action " << action << "\n";
        return 2;
    }
    if (haveText) {
        const int writesBefore = console.platform.clipboardWrites;
        console.Drop(text);
        const bool delivered = console.platform.clipboardWrites != writesBefore;
        if (delivered) std::cout << console.platform.clipboard;
        if (printLog) std::cerr << console.window.EditField2.Text();
        return delivered ? 0 : 1;
    }
    // A signal ends the console as `quit` would, so that what quitting writes is written. The
    // handler only marks it; the read it breaks ends the loop.
    struct sigaction onSignal {};
    onSignal.sa_handler = [](int) { ended = 1; };
    sigemptyset(&onSignal.sa_mask);
    for (int signal : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signal, &onSignal, nullptr);
    std::string line;
    while (!ended && std::getline(std::cin, line))
        if (!console.Execute(line, std::cout, std::cerr)) break;
    if (ended) console.Execute("quit", std::cout, std::cerr);
    if (printLog) std::cerr << console.window.EditField2.Text();
    return 0;
}
