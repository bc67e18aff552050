#include "host/validate/TrialProcess.h"

#include "host/core/base/HostError.h"
#include "host/core/process/Helper.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <utility>

namespace corvane::validate {

namespace {

using host::Descriptor;

struct Pipe {
    Descriptor readEnd;
    Descriptor writeEnd;
};

Pipe makePipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw host::HostError(std::string("The add-on cannot be tried: ") + std::strerror(errno) +
                              ". Close other programs, and try again.");
    }
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

std::string sentenceAbout(const host::HelperEnd& end, unsigned cpuSeconds) {
    if (end.exitCode == host::exitAfterException) {
        return "the trial itself has failed";
    }
    if (end.isExit()) {
        return "the add-on ended the process: exit() was called";
    }
    if (end.signal == SIGXCPU) {
        return "the callback did not come back within " + std::to_string(cpuSeconds) +
               " seconds of computing";
    }
    return std::string("the add-on crashed: ") + strsignal(end.signal);
}

/// Reads a journal to its end.
class JournalReader {
public:
    explicit JournalReader(TrialEnd& end) : m_end(end) {}

    /// To its end, or until the other descriptor can be read from.
    void readAll(int descriptor, int stop) {
        while (!m_isComplete && !m_end.wasStopped && waitFor(descriptor, stop)) {
        }
    }
    bool isComplete() const { return m_isComplete; }

private:
    /// False at the end.
    bool waitFor(int descriptor, int stop) {
        std::array<pollfd, 2> ends{pollfd{descriptor, POLLIN, 0}, pollfd{stop, POLLIN, 0}};
        if (poll(ends.data(), ends.size(), -1) < 0) {
            return errno == EINTR;
        }
        m_end.wasStopped = ends[1].revents != 0;
        return m_end.wasStopped || readSome(descriptor);
    }
    bool readSome(int descriptor) {
        std::array<char, 4096> buffer{};
        const ssize_t count = read(descriptor, buffer.data(), buffer.size());
        for (ssize_t i = 0; i < count; ++i) {
            take(buffer.at(static_cast<std::size_t>(i)));
        }
        return count > 0;
    }
    void take(char c) {
        if (c != '\n') {
            m_line += c;
        } else if (const auto line = readJournalLine(std::exchange(m_line, {}))) {
            take(*line);
        }
    }
    void take(const JournalLine& line);

    TrialEnd& m_end;
    std::string m_line;
    bool m_isComplete = false;
};

void JournalReader::take(const JournalLine& line) {
    using Kind = JournalLine::Kind;
    switch (line.kind) {
    case Kind::At:
        m_end.at = line.action;
        m_end.failing.clear();
        break;
    case Kind::Fails:
        m_end.failing = line.operation;
        break;
    case Kind::Broken:
        m_end.findings.push_back(line.finding);
        break;
    case Kind::FailureReached:
        m_end.wasFailureReached = true;
        break;
    case Kind::Counts:
        m_end.counts = line.counts;
        break;
    case Kind::End:
        m_isComplete = true;
        break;
    }
}

} // namespace

TrialEnd runTrial(const TrialOrder& order, int stop) {
    Pipe journal = makePipe();
    host::Helper helper(trying, argumentsOf(order), {}, {journal.writeEnd.get()});
    journal.writeEnd.reset();
    TrialEnd end;
    JournalReader reader(end);
    reader.readAll(journal.readEnd.get(), stop);
    if (end.wasStopped) {
        return end; // which ends the helper
    }
    const host::HelperEnd processEnd = helper.wait();
    if (!reader.isComplete()) {
        end.death = sentenceAbout(processEnd, order.cpuSeconds);
    }
    return end;
}

} // namespace corvane::validate
