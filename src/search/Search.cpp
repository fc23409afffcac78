// Searching the reference files.

#include "window/Window1.h"

void Window1::WireSearch() {}

void Window1::SearchRequest(const std::string& caption, const std::string& term, bool fromButton) {
    (void)caption, (void)term, (void)fromButton;
}
