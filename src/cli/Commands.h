#pragma once
// Commands that act on a window as a user would, one a line: the console's language, also
// spoken by the real window when a script or a second start asks. Each passes the event
// boundary.

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "framework/Platform.h"
#include "window/Window1.h"

// One command line taken apart: "set EditField4 2+2" is the command "set", the rest
// "EditField4 2+2", the name "EditField4" and the value "2+2" (escapes undone).
struct CommandLine {
    explicit CommandLine(const std::string& line);
    std::string command;  // lower case
    std::string rest;
    std::string name;
    std::string value;
};

class Commands {
public:
    Commands(Window1& window, fw::Platform& platform) : window(window), platform(platform) {}

    // Runs one command line; prints what `get` asks for to `out` and faults of the command
    // itself ("error: ...") to `err`. Returns false after `quit`.
    bool Execute(const std::string& line, std::ostream& out, std::ostream& err);

    // A user's drop of `text` on the window.
    void Drop(const std::string& text);
    // A user's choice of `caption` in the action menu; false if the menu has no such row.
    bool Choose(const std::string& caption);

    // Holds or releases the shift key, where the desktop can pretend to.
    std::function<void(bool)> holdShift;
    // What the desktop showed and played so far, for `get messages`, `get sounds` and
    // `get urls`; left unset where the desktop keeps no record.
    const std::vector<std::string>* messages = nullptr;
    const std::vector<std::string>* sounds = nullptr;
    const std::vector<std::string>* urls = nullptr;

private:
    bool List(const std::string& name, std::ostream& out, std::ostream& err) const;
    bool Get(const std::string& name, std::string& value);
    void Click(fw::Control& control, const std::string& rest);
    void Set(fw::Control& control, const std::string& value);

    Window1& window;
    fw::Platform& platform;
};

// "\n", "\t" and "\\" escapes of a command line, and the reverse for printed values.
std::string Unescape(const std::string& text);
std::string EscapeNewlines(const std::string& text);
