// The Welcome page: the way to the web page and to the maintainers, and the clipboard viewer's
// Reset.

#include "shell/HelpTexts.h"
#include "window/Addresses.h"
#include "window/Window1.h"

bool Window1::StaticText24_MouseDown(int, int) {
    platform.ShowURL(kHomePage);
    return false;
}

void Window1::PushButton4_Action() {
    LogLine("--eMailed");
    platform.ShowURL(helptext::SupportMail());
}

// Only the viewer changes: the clipboard keeps what it has.
void Window1::PushButton48_Action() { TextArea8.SetText(helptext::Introduction()); }
