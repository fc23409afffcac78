#pragma once
// The console's language spoken to the real window: every act is a mouse or key event at the
// widget's real place (a check box's box, a list cell, a tab, a menu row, keys typed into a
// field), so that a scenario passes through the widgets and not around them. What `get`
// reads, the timer and quitting go through the console's own commands.

#include <iosfwd>
#include <string>

#include "cli/Commands.h"
#include "gui/WindowView.h"

class QWidget;

class WidgetDriver {
public:
    WidgetDriver(Window1& window, WindowView& view, Commands& commands)
        : window_(window), view_(view), commands_(commands) {}

    // As Commands::Execute; acts that no user could do (on a hidden or disabled widget) are
    // errors here.
    bool Execute(const std::string& line, std::ostream& out, std::ostream& err);

private:
    QWidget* OnScreen(const std::string& name, std::ostream& err) const;
    bool Choose(const std::string& caption);
    void Drop(const std::string& text);
    void Click(QWidget* widget, const std::string& name, int row, int column);
    void Set(QWidget* widget, const std::string& value);

    Window1& window_;
    WindowView& view_;
    Commands& commands_;
};
