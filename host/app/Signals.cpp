// The signals of the process.
#include "host/app/Signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace corvane::app {
namespace {

volatile std::sig_atomic_t signalled = 0;
volatile std::sig_atomic_t bell = -1; // the end of a pipe at which an event loop listens

extern "C" void rememberStop(int) {
    const int error = errno;
    signalled = 1;
    if (bell >= 0) {
        [[maybe_unused]] const ssize_t count = write(bell, "", 1);
    }
    errno = error;
}

/// Reads and writes in progress go on, since the flight unwinds by itself.
void watch(int signal, unsigned flags) {
    struct sigaction action {};
    action.sa_handler = rememberStop;
    action.sa_flags = static_cast<int>(SA_RESTART | flags);
    sigaction(signal, &action, nullptr);
}

bool isIgnored(int signal) {
    struct sigaction action {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

void surviveFailedWrites() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

void watchStopSignals() {
    // Back to the default after the first: whoever presses Ctrl-C twice wants the process gone.
    watch(SIGINT, SA_RESETHAND);
    watch(SIGTERM, SA_RESETHAND);
    // A terminal that goes may say so twice, by itself and by its shell.
    if (!isIgnored(SIGHUP)) {
        watch(SIGHUP, 0);
    }
}

bool isStopSignalled() {
    return signalled != 0;
}

int stopSignalDescriptor() {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) == 0) {
        bell = ends[1];
    }
    return ends[0];
}

} // namespace corvane::app
