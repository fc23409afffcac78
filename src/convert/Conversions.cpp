// Conversions on the target and through the = key.

#include "window/Window1.h"

void Window1::WireConversions() {}

bool Window1::ConvertFromKey(const std::string& caption, const std::string& expression) {
    (void)caption, (void)expression;
    return false;
}
