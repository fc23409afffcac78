#pragma once
// A logout, `kill` or Ctrl+C ends Velmora as its close button does, so that what the close
// writes (the formula memory) is written: the signal is turned into a call on the GUI thread.

#include <functional>

// Calls `onSignal` on the GUI thread at SIGTERM, SIGINT or SIGHUP. Needs a QCoreApplication.
void EndOnTerminationSignals(std::function<void()> onSignal);
