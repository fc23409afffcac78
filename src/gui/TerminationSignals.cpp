#include "gui/TerminationSignals.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>

namespace {
int signalPipe[2] = {-1, -1};

// Only what is safe inside a signal handler: one write to a pipe.
void Forward(int) {
    const char byte = 1;
    (void)!::write(signalPipe[1], &byte, 1);
}
}  // namespace

void EndOnTerminationSignals(std::function<void()> onSignal) {
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [notifier, onSignal] {
        char bytes[16];
        while (::read(signalPipe[0], bytes, sizeof bytes) > 0) {
        }
        notifier->setEnabled(false);  // the first signal ends the program; later ones wait for it
        onSignal();
    });
    struct sigaction action {};
    action.sa_handler = Forward;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int signal : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signal, &action, nullptr);
}
