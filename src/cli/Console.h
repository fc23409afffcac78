#pragma once
// The program without a screen: the introduction window, passed as Continue would pass it, then
// Window1 on the recording desktop, driven by commands that act as a user would.

#include <iosfwd>
#include <string>

#include "cli/Commands.h"
#include "framework/RecordingPlatform.h"
#include "shell/Window2.h"
#include "window/Window1.h"

class Console {
public:
    // `shiftAtLaunch` holds the shift key while the introduction window opens; each message
    // box, from the first on, is also written to `messagesTo` if given.
    explicit Console(fw::FolderSet folders, bool shiftAtLaunch = false, std::ostream* messagesTo = nullptr);

    bool Execute(const std::string& line, std::ostream& out, std::ostream& err) {
        return commands.Execute(line, out, err);
    }
    void Drop(const std::string& text) { commands.Drop(text); }
    bool Choose(const std::string& caption) { return commands.Choose(caption); }

    fw::RecordingPlatform platform;
    Window1 window;
    Commands commands;
    Window2 intro;

private:
    void ShowMainWindow();
    bool mainOpened_ = false;
};
