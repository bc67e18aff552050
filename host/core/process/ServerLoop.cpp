#include "host/core/process/ServerLoop.h"

#include "host/core/process/HelperProcess.h"
#include "host/core/process/HelperRequest.h"
#include "host/core/process/Socket.h"

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvane::host {

namespace {

/// A parent may have had SIGCHLD ignored, and then nobody is told how children ended.
Descriptor childSignals() {
    std::signal(SIGCHLD, SIG_DFL);
    sigset_t ended;
    sigemptyset(&ended);
    sigaddset(&ended, SIGCHLD);
    return Descriptor(signalfd(-1, &ended, SFD_CLOEXEC | SFD_NONBLOCK));
}

} // namespace

ServerLoop::ServerLoop(Descriptor requests)
    : m_requests(std::move(requests)), m_signals(childSignals()) {}

void ServerLoop::run() {
    bool hasClient = m_signals.get() >= 0;
    while (hasClient) {
        std::vector<pollfd> ends{{m_requests.get(), POLLIN, 0}, {m_signals.get(), POLLIN, 0}};
        for (const Running& helper : m_running) {
            // The end of a stream is told for ever; once is enough.
            ends.push_back({helper.isKilled ? -1 : helper.stream.get(), POLLRDHUP, 0});
        }
        if (poll(ends.data(), ends.size(), -1) < 0) {
            continue;
        }
        for (std::size_t i = 0; i < m_running.size(); ++i) {
            if (ends[i + 2].revents != 0) {
                kill(m_running[i]);
            }
        }
        if (ends[1].revents != 0) {
            reap();
        }
        if (ends[0].revents != 0) {
            hasClient = takeRequest();
        }
    }
    endHelpers();
    _exit(0);
}

bool ServerLoop::takeRequest() {
    char byte = 0;
    std::vector<Descriptor> streams;
    if (!receiveAll(m_requests.get(), &byte, 1, &streams)) {
        return false;
    }
    for (Descriptor& stream : streams) {
        start(std::move(stream));
    }
    return true;
}

void ServerLoop::start(Descriptor stream) {
    const pid_t server = getpid();
    const pid_t pid = fork();
    if (pid == 0) {
        m_running.clear();
        m_requests.reset();
        m_signals.reset();
        runHelper(std::move(stream), server);
    }
    const HelperStarted started{pid < 0 ? errno : 0, pid};
    sendAll(stream.get(), &started, sizeof started);
    if (pid > 0) {
        m_running.push_back({pid, std::move(stream)});
    }
}

void ServerLoop::kill(Running& helper) {
    ::kill(helper.pid, SIGKILL);
    helper.isKilled = true;
}

void ServerLoop::reap() {
    signalfd_siginfo ended{};
    while (read(m_signals.get(), &ended, sizeof ended) > 0) {
    }
    // Signals that wait at the same time become one, so every helper is asked after.
    std::erase_if(m_running, [](const Running& helper) {
        HelperEnded end;
        if (waitpid(helper.pid, &end.status, WNOHANG) != helper.pid) {
            return false;
        }
        sendAll(helper.stream.get(), &end, sizeof end);
        return true;
    });
}

void ServerLoop::endHelpers() {
    for (Running& helper : m_running) {
        kill(helper);
    }
    // One that hangs in the kernel, as on a file server that is gone, is left to itself.
    constexpr int patience = 1000;
    pollfd ended{m_signals.get(), POLLIN, 0};
    while (!m_running.empty() && poll(&ended, 1, patience) > 0) {
        reap();
    }
}

} // namespace corvane::host
