// Helpers that do what they are asked.
#include "host/core/process/Helper.h"

#include "host/core/process/ProcessServer.h"
#include "host/core/process/Socket.h"
#include "tests/unit/host/core/process/HelperTasks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace corvane::test {
namespace {

using host::Helper;
using testing::Each;

class HelperTest : public testing::Test {
protected:
    host::ProcessServer server;
};

struct Pipe {
    Pipe() {
        std::array<int, 2> ends{-1, -1};
        if (pipe(ends.data()) != 0) {
            throw std::runtime_error("no pipe");
        }
        readEnd = host::Descriptor(ends[0]);
        writeEnd = host::Descriptor(ends[1]);
    }
    host::Descriptor readEnd;
    host::Descriptor writeEnd;
};

/// To the end of what can be read.
std::string readText(int file) {
    std::string text;
    std::array<char, 4096> part{};
    for (ssize_t count = 0; (count = read(file, part.data(), part.size())) > 0;) {
        text.append(part.data(), static_cast<std::size_t>(count));
    }
    return text;
}

std::ptrdiff_t openFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

int exitCodeOf(const host::Task& task) {
    return Helper(task).wait().exitCode;
}

std::vector<std::string> echoed(const std::vector<std::string>& arguments) {
    host::SocketPair ends = host::connectedSockets(SOCK_STREAM);
    Helper helper(echoArguments, arguments, {}, {ends.second.get()});
    ends.second.reset();
    std::vector<std::string> texts;
    for (std::size_t size = 0; host::receiveAll(ends.first.get(), &size, sizeof size);) {
        std::string text(size, '\0');
        if (!host::receiveAll(ends.first.get(), text.data(), size)) {
            break;
        }
        texts.push_back(text);
    }
    return texts;
}

TEST_F(HelperTest, answersByItsExitCode) {
    for (const int code : {0, 1, 254}) {
        const host::HelperEnd end = Helper(answerNumber, {std::to_string(code)}).wait();
        EXPECT_TRUE(end.isExit());
        EXPECT_EQ(end.exitCode, code);
    }
    EXPECT_EQ(exitCodeOf(throwError), host::exitAfterException);
}

TEST_F(HelperTest, isAnotherProcess) {
    Helper helper(answerNumber, {"0"});
    EXPECT_GT(helper.pid(), 0);
    EXPECT_NE(helper.pid(), getpid());
    EXPECT_NE(helper.pid(), server.pid());
    EXPECT_EQ(helper.wait().exitCode, 0);
}

TEST_F(HelperTest, getsArgumentsOfAnyBytes) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    const std::vector<std::string> arguments{"", everyByte, "a\nb", std::string(3, '\0'), ""};
    EXPECT_EQ(echoed(arguments), arguments);
    EXPECT_EQ(echoed({}), std::vector<std::string>{});
}

TEST_F(HelperTest, getsArgumentsLargerThanABuffer) {
    const std::vector<std::string> arguments{std::string(5'000'000, 'x'), "y"};
    EXPECT_EQ(echoed(arguments), arguments);
}

TEST_F(HelperTest, getsDescriptorsInTheirOrder) {
    Pipe input;
    Pipe first;
    Pipe second;
    Helper helper(copyText, {}, {},
                  {input.readEnd.get(), first.writeEnd.get(), second.writeEnd.get()});
    ASSERT_EQ(write(input.writeEnd.get(), "hello", 5), 5);
    EXPECT_EQ(helper.wait().exitCode, 2);
    // Nobody else has kept the ends to write to, so that these come to an end.
    first.writeEnd.reset();
    second.writeEnd.reset();
    EXPECT_EQ(readText(first.readEnd.get()), "hello");
    EXPECT_EQ(readText(second.readEnd.get()), "hello");
}

TEST_F(HelperTest, getsAsManyDescriptorsAsAreAllowed) {
    Pipe input;
    Pipe output;
    std::vector<int> descriptors(host::mostDescriptors, output.writeEnd.get());
    descriptors[0] = input.readEnd.get();
    Helper helper(copyText, {}, {}, descriptors);
    ASSERT_EQ(write(input.writeEnd.get(), "x", 1), 1);
    EXPECT_EQ(helper.wait().exitCode, static_cast<int>(host::mostDescriptors) - 1);
    output.writeEnd.reset();
    EXPECT_EQ(readText(output.readEnd.get()), std::string(host::mostDescriptors - 1, 'x'));
}

TEST_F(HelperTest, hasTheSignalsOfAFreshProcess) {
    for (const int signal : {SIGINT, SIGTERM, SIGCHLD, SIGPIPE, SIGUSR1, SIGALRM}) {
        EXPECT_EQ(Helper(askForSignal, {std::to_string(signal)}).wait().exitCode, 0) << signal;
    }
}

TEST_F(HelperTest, thereMayBeManyFromSeveralThreads) {
    constexpr std::size_t threadCount = 4;
    constexpr int each = 25;
    std::array<std::vector<int>, threadCount> codes;
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < threadCount; ++i) {
        threads.emplace_back([i, &mine = codes[i]] {
            std::vector<Helper> helpers;
            for (int n = 0; n < each; ++n) {
                helpers.emplace_back(answerNumber, std::vector{std::to_string(i + 1)});
            }
            for (Helper& helper : helpers) {
                mine.push_back(helper.wait().exitCode);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (std::size_t i = 0; i < threadCount; ++i) {
        EXPECT_EQ(codes[i].size(), each);
        EXPECT_THAT(codes[i], Each(static_cast<int>(i + 1)));
    }
}

TEST_F(HelperTest, leavesNoFilesOpenAndNoZombies) {
    const auto files = openFiles();
    const int serverFiles = exitCodeOf(countServerFiles);
    const host::Descriptor handed(dup(STDERR_FILENO));
    for (int n = 0; n < 50; ++n) {
        EXPECT_EQ(Helper(answerNumber, {"7"}, {}, {handed.get()}).wait().exitCode, 7);
    }
    EXPECT_EQ(openFiles(), files + 1);
    EXPECT_EQ(exitCodeOf(countServerChildren), 1);
    EXPECT_EQ(exitCodeOf(countServerFiles), serverFiles);
}

TEST_F(HelperTest, isKilledAndForgottenWhenItsOwnerGoes) {
    const int serverFiles = exitCodeOf(countServerFiles);
    for (int n = 0; n < 50; ++n) {
        const Helper dropped(waitForEver);
    }
    const auto until = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (exitCodeOf(countServerChildren) != 1) {
        ASSERT_LT(std::chrono::steady_clock::now(), until);
    }
    EXPECT_EQ(exitCodeOf(countServerFiles), serverFiles);
}

TEST_F(HelperTest, theServerHoldsNoFilesOfOthers) {
    const int before = exitCodeOf(countServerFiles);
    const host::Descriptor later(dup(STDERR_FILENO));
    EXPECT_EQ(exitCodeOf(countServerFiles), before);
    // The three standard ones, requests, signals and the stream of the helper that counts.
    EXPECT_EQ(before, 6);
}

TEST(TaskTest, comesBeforeTheServer) {
    const host::ProcessServer server;
    EXPECT_THROW(host::Task("late", [](const host::TaskInput&) { return 0; }), std::logic_error);
}

TEST(ProcessServerTest, isOneAtATime) {
    const host::ProcessServer server;
    EXPECT_THROW(host::ProcessServer(), std::logic_error);
}

TEST(ProcessServerTest, isNeededByHelpers) {
    EXPECT_THROW(Helper(answerNumber, {"0"}), std::logic_error);
}

} // namespace
} // namespace corvane::test
