#pragma once
// The one boundary every event from outside passes: a drop, a click, a key, a timer tick, a
// console command. A fault no handler caught ends here with a message that names its class,
// and the next event runs as usual.

#include <functional>

namespace fw {

class Platform;

// Runs `handler`; returns false if it ended in an uncaught fault (already reported).
bool RunEvent(Platform& platform, const std::function<void()>& handler);

}  // namespace fw
