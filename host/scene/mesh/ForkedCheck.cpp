// Work that may bring the process down, tried in a copy of the process.
#include "host/scene/mesh/ForkedCheck.h"

#include <cerrno>
#include <csignal>
#include <initializer_list>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvane::scene {

namespace {

/// A crash here is an answer, not an accident: no handler tells of it and no core is written.
/// Ctrl-C ends it as it ends the wait for it.
[[noreturn]] void tryIt(const std::function<void()>& work, unsigned seconds) {
    for (const int signal :
         {SIGALRM, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGINT, SIGTERM, SIGHUP}) {
        std::signal(signal, SIG_DFL);
    }
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    alarm(seconds);
    try {
        work();
    } catch (...) { // what went wrong is told by the one who does it again
    }
    _exit(0); // nothing of the process that this is a copy of may be cleaned up
}

} // namespace

bool survives(const std::function<void()>& work, unsigned seconds) {
    const pid_t child = fork();
    if (child == 0) {
        tryIt(work, seconds);
    }
    if (child < 0) {
        return true;
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status);
}

} // namespace corvane::scene
