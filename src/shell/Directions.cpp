// The Directions tab follows the chosen action, and "More Instructions" adds the full help.

#include "framework/Text.h"
#include "shell/HelpTexts.h"
#include "window/Window1.h"

using namespace fw;

void Window1::WriteDirections(const std::string& caption) {
    // Expanded, the settings stand beside the tab, so it shows the general directions instead.
    const bool general = StrEq(caption, "Settings") && wincon != 0;
    EditField10.SetText(helptext::Directions(general ? "Action" : caption).value_or(helptext::DirectionsError()));
}

void Window1::PushButton43_Action() {
    ButtonAct("?");
    EditField10.SetText(helptext::kMoreInstructions + EndOfLine + EditField10.Text());
    // The viewer shows whatever the clipboard now holds, the help just put there as a rule.
    Clipboard clipboard(platform);
    const std::string held = platform.ClipboardText();
    if (!held.empty()) TextArea8.SetText(held);
    clipboard.Close();
}
