#include "host/core/process/HelperProcess.h"

#include "host/core/process/HelperRequest.h"
#include "host/core/process/Task.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace corvane::host {

namespace {

void endWith(pid_t server) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != server) { // it has ended before that was said
        _exit(exitAfterException);
    }
}

/// Ctrl-C and crashes end a helper, whatever the program does about them. The hang-up that nohup
/// has ignored stays so.
void takeDefaultSignals() {
    for (int signal = 1; signal < NSIG; ++signal) {
        struct sigaction action {};
        if (sigaction(signal, nullptr, &action) != 0 ||
            (signal == SIGHUP && action.sa_handler == SIG_IGN)) {
            continue;
        }
        std::signal(signal, SIG_DFL);
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// A crash is an answer, not an accident. The size is for systems that write cores to files, the
/// other for those that hand them to a program.
void leaveNoCore() {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    prctl(PR_SET_DUMPABLE, 0);
}

rlim_t presentAddressSpace() {
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

void limit(__rlimit_resource resource, rlim_t soft, rlim_t hard) {
    rlimit present{};
    getrlimit(resource, &present);
    present.rlim_max = std::min(present.rlim_max, hard);
    present.rlim_cur = std::min(present.rlim_max, soft);
    setrlimit(resource, &present);
}

void obey(const HelperLimits& limits) {
    if (limits.memoryBytes > 0) {
        const rlim_t bytes = presentAddressSpace() + limits.memoryBytes;
        limit(RLIMIT_AS, bytes, bytes);
    }
    if (limits.cpuSeconds > 0) {
        limit(RLIMIT_CPU, limits.cpuSeconds, limits.cpuSeconds + 1);
    }
}

int perform(const HelperRequest& request, std::vector<Descriptor> descriptors) {
    const Task::Work work = workOfTask(request.task);
    return work({request.arguments, std::move(descriptors)});
}

} // namespace

void runHelper(Descriptor stream, pid_t server) {
    endWith(server);
    prctl(PR_SET_NAME, "corvane-helper");
    leaveNoCore();
    takeDefaultSignals();
    try {
        HelperRequest request;
        std::vector<Descriptor> descriptors;
        if (!receiveRequest(stream.get(), request, descriptors)) {
            _exit(exitAfterException);
        }
        stream.reset();
        obey(request.limits);
        _exit(perform(request, std::move(descriptors)));
    } catch (...) { // what went wrong is not for the terminal: the client asks again or tells it
        _exit(exitAfterException);
    }
}

} // namespace corvane::host
