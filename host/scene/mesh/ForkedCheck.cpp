#include "host/scene/mesh/ForkedCheck.h"

#include "host/core/base/HostError.h"
#include "host/core/process/Descriptor.h"
#include "host/core/process/Helper.h"

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace corvane::scene {

namespace {

constexpr int exitRefused = 1;

/// Sentences are cut where they would not fit into a pipe that nobody reads yet.
constexpr std::size_t longestSentence = PIPE_BUF;

std::string allOf(int pipe) {
    std::array<char, longestSentence> bytes{};
    const ssize_t count = read(pipe, bytes.data(), bytes.size());
    return {bytes.data(), count > 0 ? static_cast<std::size_t>(count) : 0};
}

TrialEnd::Kind kindOf(const host::HelperEnd& end) {
    if (!end.isExit()) {
        return end.signal == SIGXCPU ? TrialEnd::Kind::Endless : TrialEnd::Kind::Crashed;
    }
    return end.exitCode == 0 ? TrialEnd::Kind::Done : TrialEnd::Kind::Refused;
}

} // namespace

TrialEnd tryInHelper(const host::Task& task, const std::vector<std::string>& arguments,
                     const host::HelperLimits& limits) {
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return {};
    }
    const host::Descriptor readEnd(ends[0]);
    host::Descriptor writeEnd(ends[1]);
    try {
        host::Helper helper(task, arguments, limits, {writeEnd.get()});
        writeEnd.reset();
        TrialEnd end{kindOf(helper.wait())};
        end.sentence = allOf(readEnd.get());
        return end;
    } catch (const host::HostError&) {
        return {};
    }
}

int tellEnd(const host::TaskInput& input, void (*work)(const std::vector<std::string>& arguments)) {
    try {
        work(input.arguments);
        return 0;
    } catch (const host::HostError& error) {
        const std::string_view sentence = error.what();
        static_cast<void>(!write(input.descriptors.at(0).get(), sentence.data(),
                                 std::min(sentence.size(), longestSentence)));
        return exitRefused;
    }
}

} // namespace corvane::scene
