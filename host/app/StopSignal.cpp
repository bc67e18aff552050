// Ctrl-C and the end signal of a batch system, as a wish that the flight looks at.
#include "host/app/StopSignal.h"

#include <csignal>

namespace corvane::app {
namespace {

volatile std::sig_atomic_t signalled = 0;

extern "C" void rememberStop(int) {
    signalled = 1;
}

void watch(int signal) {
    struct sigaction action {};
    action.sa_handler = rememberStop;
    // Back to the default after the first: whoever presses Ctrl-C twice wants the process gone.
    // Reads and writes in progress go on, since the flight unwinds by itself.
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    sigaction(signal, &action, nullptr);
}

} // namespace

void watchStopSignals() {
    watch(SIGINT);
    watch(SIGTERM);
}

bool isStopSignalled() {
    return signalled != 0;
}

} // namespace corvane::app
