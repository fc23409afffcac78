// The quadratic and the two-linear-equations solvers.

#include "window/Window1.h"

void Window1::WireSolvers() {}
