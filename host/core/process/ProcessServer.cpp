#include "host/core/process/ProcessServer.h"

#include "host/core/process/ServerLoop.h"
#include "host/core/process/Socket.h"
#include "host/core/process/Task.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvane::host {

namespace {

/// While one lives, no signal reaches this thread, nor a process that it forks.
class SignalsBlocked {
public:
    SignalsBlocked() {
        sigset_t all;
        sigfillset(&all);
        sigprocmask(SIG_SETMASK, &all, &m_before);
    }
    ~SignalsBlocked() { sigprocmask(SIG_SETMASK, &m_before, nullptr); }
    SignalsBlocked(const SignalsBlocked&) = delete;
    SignalsBlocked& operator=(const SignalsBlocked&) = delete;

private:
    sigset_t m_before{};
};

/// Files that the program was started with, such as the pipes of a build or of a batch system,
/// would otherwise stay open in helpers. Where the kernel does not know the call, they do.
Descriptor keepOnly(Descriptor kept) {
    constexpr int lowest = STDERR_FILENO + 1;
    if (kept.get() != lowest) {
        kept = Descriptor(dup3(kept.get(), lowest, O_CLOEXEC));
    }
    close_range(lowest + 1, UINT_MAX, 0);
    return kept;
}

/// The client's death closes the connection as well, unless a process that it forked holds it.
[[noreturn]] void serve(Descriptor requests, pid_t client) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != client) {
        _exit(0);
    }
    prctl(PR_SET_NAME, "corvane-server");
    ServerLoop(keepOnly(std::move(requests))).run();
}

} // namespace

ProcessServer* ProcessServer::s_server = nullptr;

ProcessServer::ProcessServer() : m_client(getpid()) {
    if (s_server != nullptr) {
        throw std::logic_error("there is a process server already");
    }
    s_server = this;
    closeTaskList();
    try {
        start();
    } catch (const HostError& error) {
        m_error = error.what();
    }
}

ProcessServer::~ProcessServer() {
    s_server = nullptr;
    if (getpid() != m_client || m_pid < 0) {
        return;
    }
    shutdown(m_requests.get(), SHUT_RDWR);
    while (waitpid(m_pid, nullptr, 0) < 0 && errno == EINTR) {
    }
}

void ProcessServer::start() {
    SocketPair ends = connectedSockets(SOCK_SEQPACKET);
    const SignalsBlocked blocked; // Ctrl-C is none of the server's business from the start
    m_pid = fork();
    if (m_pid == 0) {
        ends.first.reset();
        serve(std::move(ends.second), m_client);
    }
    if (m_pid < 0) {
        throw HostError(std::string("No processes can be started that work for this program: ") +
                        std::strerror(errno) + ". Close other programs, and start it again.");
    }
    m_requests = std::move(ends.first);
}

void ProcessServer::makeHelper(int stream) {
    if (s_server == nullptr) {
        throw std::logic_error("there is no process server");
    }
    s_server->askFor(stream);
}

void ProcessServer::askFor(int stream) {
    if (!m_error.empty()) {
        throw HostError(m_error);
    }
    if (sendAll(m_requests.get(), "", 1, {stream}) != 0) {
        throw lost();
    }
}

HostError ProcessServer::lost() {
    return HostError("The process that starts others for this program has ended, and they with it. "
                     "Save your work, and start the program again.");
}

} // namespace corvane::host
