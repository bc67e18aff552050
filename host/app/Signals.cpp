// The signals of the process.
#include "host/app/Signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace corvane::app {
namespace {

volatile std::sig_atomic_t signalled = 0; // the first signal
volatile std::sig_atomic_t bell = -1;     // the end of a pipe at which an event loop listens

/// A terminal that goes may say so twice: its shell does, and then the system itself.
bool repeatsHangUp(int signal, const siginfo_t& information) {
    return signal == SIGHUP && signalled == SIGHUP && information.si_code == SI_KERNEL;
}

/// As if it had never been watched, once the handler returns.
void endBy(int signal) {
    struct sigaction usual {};
    usual.sa_handler = SIG_DFL;
    sigaction(signal, &usual, nullptr);
    raise(signal);
}

extern "C" void rememberStop(int signal, siginfo_t* information, void*) {
    const int error = errno;
    if (signalled == 0) {
        signalled = signal;
        if (bell >= 0) {
            [[maybe_unused]] const ssize_t count = write(bell, "", 1);
        }
    } else if (!repeatsHangUp(signal, *information)) {
        endBy(signal);
    }
    errno = error;
}

/// Reads and writes in progress go on, since the flight unwinds by itself.
void watch(int signal) {
    struct sigaction action {};
    action.sa_sigaction = rememberStop;
    action.sa_flags = SA_RESTART | SA_SIGINFO;
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
    watch(SIGINT);
    watch(SIGTERM);
    if (!isIgnored(SIGHUP)) {
        watch(SIGHUP);
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
