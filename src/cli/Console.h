#pragma once
// The program without a screen: Window1 on the recording desktop, driven by commands that act
// as a user would. Each command passes the event boundary.

#include <iosfwd>
#include <string>

#include "framework/RecordingPlatform.h"
#include "window/Window1.h"

class Console {
public:
    explicit Console(fw::FolderSet folders);

    // Runs one command line; prints what `get` asks for to `out` and faults of the command
    // itself ("error: ...") to `err`. Returns false after `quit`.
    bool Execute(const std::string& line, std::ostream& out, std::ostream& err);

    // A user's drop of `text` on the window.
    void Drop(const std::string& text);
    // A user's choice of `caption` in the action menu; false if the menu has no such row.
    bool Choose(const std::string& caption);

    fw::RecordingPlatform platform;
    Window1 window;

private:
    bool Get(const std::string& name, std::string& value);
    void Click(fw::Control& control, const std::string& rest);
    void Set(fw::Control& control, const std::string& value);
};

// "\n", "\t" and "\\" escapes of a command line, and the reverse for printed values.
std::string Unescape(const std::string& text);
std::string EscapeNewlines(const std::string& text);
