#pragma once
// The program without a screen: Window1 on the recording desktop, driven by commands that act
// as a user would.

#include <iosfwd>
#include <string>

#include "cli/Commands.h"
#include "framework/RecordingPlatform.h"
#include "window/Window1.h"

class Console {
public:
    explicit Console(fw::FolderSet folders);

    bool Execute(const std::string& line, std::ostream& out, std::ostream& err) {
        return commands.Execute(line, out, err);
    }
    void Drop(const std::string& text) { commands.Drop(text); }
    bool Choose(const std::string& caption) { return commands.Choose(caption); }

    fw::RecordingPlatform platform;
    Window1 window;
    Commands commands;
};
