// Stored formulas: the m and mr keys, the list shown under Evaluate, and VLmemory.txt.

#include "window/Window1.h"

void Window1::WireMemory() {}
