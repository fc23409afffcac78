// Searching the reference files.

#include "window/Window1.h"

void Window1::WireSearch() {}
