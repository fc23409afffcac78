// The Directions tab follows the chosen action.

#include "window/Window1.h"

void Window1::WriteDirections(const std::string& caption) { (void)caption; }
