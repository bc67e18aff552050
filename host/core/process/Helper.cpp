#include "host/core/process/Helper.h"

#include "host/core/process/ProcessServer.h"
#include "host/core/process/Socket.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>

namespace corvane::host {

namespace {

using Clock = std::chrono::steady_clock;

HostError noHelper(int error) {
    return HostError(std::string("No process can be started to work for this program: ") +
                     std::strerror(error) + ". Close other programs, and try again.");
}

/// Our end of the stream.
Descriptor streamToNewHelper() {
    SocketPair ends = connectedSockets(SOCK_STREAM);
    ProcessServer::makeHelper(ends.second.get());
    return std::move(ends.first);
}

bool isReadable(int stream, std::chrono::milliseconds patience) {
    const auto until = Clock::now() + patience;
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now()).count();
        pollfd end{stream, POLLIN, 0};
        const auto most = std::clamp<long long>(left, 0, INT_MAX);
        if (poll(&end, 1, static_cast<int>(most)) > 0) {
            return true;
        }
        if (left <= 0) {
            return false;
        }
    }
}

} // namespace

Helper::Helper(const Task& task, const std::vector<std::string>& arguments,
               const HelperLimits& limits, const std::vector<int>& descriptors)
    : m_stream(streamToNewHelper()) {
    HelperStarted started;
    if (!receiveAll(m_stream.get(), &started, sizeof started)) {
        throw ProcessServer::lost();
    }
    if (started.error != 0) {
        throw noHelper(started.error);
    }
    m_pid = started.pid;
    const int error = sendRequest(m_stream.get(), {task.name(), arguments, limits}, descriptors);
    // A helper that was ended before it had read everything is told by wait().
    if (error != 0 && error != EPIPE && error != ECONNRESET) {
        throw noHelper(error);
    }
}

HelperEnd Helper::wait() {
    if (!m_end) {
        m_end = readEnd();
    }
    return *m_end;
}

std::optional<HelperEnd> Helper::waitFor(std::chrono::milliseconds patience) {
    if (!m_end && isReadable(m_stream.get(), patience)) {
        m_end = readEnd();
    }
    return m_end;
}

void Helper::terminate() {
    shutdown(m_stream.get(), SHUT_WR);
}

HelperEnd Helper::readEnd() {
    HelperEnded ended;
    if (!receiveAll(m_stream.get(), &ended, sizeof ended)) {
        throw ProcessServer::lost();
    }
    if (WIFEXITED(ended.status)) {
        return {WEXITSTATUS(ended.status), 0};
    }
    return {-1, WTERMSIG(ended.status)};
}

} // namespace corvane::host
