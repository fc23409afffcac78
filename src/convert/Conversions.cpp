// Conversions on the target and through the = key.

#include "window/Window1.h"

void Window1::WireConversions() {}

bool Window1::ConvertFromKey(const std::string& caption, const std::string& expression) {
    (void)caption, (void)expression;
    return false;
}

void Window1::ConvertDrop(const std::string& text, const std::string& unitWord) { (void)text, (void)unitWord; }

void Window1::ConvertButton(const std::string& text) { (void)text; }
