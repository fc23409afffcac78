// The help texts and where they go.

#include "window/Window1.h"

void Window1::WireHelp() {}

void Window1::HelpBranch(const std::string& text, bool blink) { (void)text, (void)blink; }

void Window1::EvaluateHelp(const std::string& text) { (void)text; }
