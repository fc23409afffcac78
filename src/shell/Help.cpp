// The help texts and where they go.

#include "window/Window1.h"

void Window1::WireHelp() {}
