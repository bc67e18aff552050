#include "host/validate/TrialProcess.h"

#include "host/core/base/HostError.h"
#include "host/core/process/Helper.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
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

    void readAll(int descriptor) {
        std::array<char, 4096> buffer{};
        ssize_t count = 0;
        while ((count = read(descriptor, buffer.data(), buffer.size())) > 0 ||
               (count < 0 && errno == EINTR)) {
            for (ssize_t i = 0; i < count; ++i) {
                take(buffer.at(static_cast<std::size_t>(i)));
            }
        }
    }
    bool isComplete() const { return m_isComplete; }

private:
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

TrialEnd runTrial(const TrialOrder& order) {
    Pipe journal = makePipe();
    host::Helper helper(trying, argumentsOf(order), {}, {journal.writeEnd.get()});
    journal.writeEnd.reset();
    TrialEnd end;
    JournalReader reader(end);
    reader.readAll(journal.readEnd.get());
    const host::HelperEnd processEnd = helper.wait();
    if (!reader.isComplete()) {
        end.death = sentenceAbout(processEnd, order.cpuSeconds);
    }
    return end;
}

} // namespace corvane::validate
