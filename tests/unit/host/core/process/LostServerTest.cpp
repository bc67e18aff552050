// Servers and clients that die.
#include "host/core/base/HostError.h"
#include "host/core/process/Helper.h"
#include "host/core/process/ProcessServer.h"
#include "host/core/process/Socket.h"
#include "tests/unit/host/core/process/HelperTasks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvane::test {
namespace {

using host::Helper;
using host::HostError;
using testing::HasSubstr;

/// Processes whose parents have gone become children of the test, which can wait for them.
class LostServerTest : public testing::Test {
protected:
    LostServerTest() { prctl(PR_SET_CHILD_SUBREAPER, 1); }
    ~LostServerTest() override { prctl(PR_SET_CHILD_SUBREAPER, 0); }

    /// -1 when there is no such child.
    static int waitStatus(pid_t pid) {
        int status = 0;
        return waitpid(pid, &status, 0) == pid ? status : -1;
    }
    /// Of helpers of a server that has gone: it may have taken note of their end, or left that to
    /// the test.
    static void expectGone(pid_t pid) {
        waitStatus(pid);
        EXPECT_EQ(kill(pid, 0), -1);
    }
};

std::string errorOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const HostError& error) {
        return error.what();
    }
    return "";
}

TEST_F(LostServerTest, isAnErrorForThoseWhoWaitAndThoseWhoAsk) {
    std::optional<host::ProcessServer> server(std::in_place);
    const pid_t serverPid = server->pid();
    Helper helper(waitForEver);
    kill(serverPid, SIGKILL);
    const std::string lost = errorOf([&] { helper.wait(); });
    EXPECT_THAT(lost, HasSubstr("has ended, and they with it"));
    EXPECT_EQ(errorOf([&] { helper.waitFor(std::chrono::minutes(10)); }), lost);
    EXPECT_EQ(errorOf([] { Helper(answerNumber, {"0"}); }), lost);
    server.reset();
    EXPECT_EQ(kill(serverPid, 0), -1) << "a zombie";
    expectGone(helper.pid());
}

TEST_F(LostServerTest, isNotLostByWhatATerminalSends) {
    const host::ProcessServer server;
    for (const int signal : {SIGINT, SIGQUIT, SIGTERM, SIGHUP, SIGPIPE, SIGUSR1}) {
        kill(server.pid(), signal);
    }
    EXPECT_EQ(Helper(answerNumber, {"5"}).wait().exitCode, 5);
}

TEST_F(LostServerTest, endsWithItsObjectAndTakesHelpersAlong) {
    std::optional<host::ProcessServer> server(std::in_place);
    Helper helper(waitForEver);
    const pid_t serverPid = server->pid();
    server.reset();
    EXPECT_EQ(kill(serverPid, 0), -1);
    EXPECT_EQ(kill(helper.pid(), 0), -1);
    EXPECT_EQ(helper.wait().signal, SIGKILL);
}

struct Family {
    pid_t server;
    pid_t helper;
};

/// A client in a process of its own, which tells of its family and is then asked to end.
pid_t forkClient(Family& family, const std::function<void()>& end) {
    const host::SocketPair ends = host::connectedSockets(SOCK_STREAM);
    const pid_t client = fork();
    if (client == 0) {
        const host::ProcessServer server;
        const Helper helper(waitForEver);
        const Family mine{server.pid(), helper.pid()};
        host::sendAll(ends.second.get(), &mine, sizeof mine);
        end();
        for (;;) {
            pause();
        }
    }
    EXPECT_TRUE(host::receiveAll(ends.first.get(), &family, sizeof family));
    return client;
}

TEST_F(LostServerTest, goesWithAKilledClient) {
    Family family{};
    const pid_t client = forkClient(family, [] {});
    kill(client, SIGKILL);
    EXPECT_NE(waitStatus(client), -1);
    EXPECT_NE(waitStatus(family.server), -1);
    expectGone(family.helper);
}

TEST_F(LostServerTest, goesWithAClientThatEndsWithoutCleaningUp) {
    Family family{};
    const pid_t client = forkClient(family, [] { _exit(0); });
    EXPECT_NE(waitStatus(client), -1);
    EXPECT_NE(waitStatus(family.server), -1);
    expectGone(family.helper);
}

TEST_F(LostServerTest, outlivesForksOfItsClient) {
    const host::ProcessServer server;
    const pid_t fork = ::fork();
    if (fork == 0) {
        server.~ProcessServer();
        _exit(0);
    }
    EXPECT_EQ(waitStatus(fork), 0);
    EXPECT_EQ(Helper(answerNumber, {"5"}).wait().exitCode, 5);
}

/// Limits on processes do not hold for root.
void becomeAnybody() {
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0 && setuid(nobody) != 0) {
        _exit(1);
    }
}

constexpr rlimit noProcesses{0, 0};

TEST_F(LostServerTest, anErrorWhenThereCanBeNoServer) {
    EXPECT_EXIT(
        {
            becomeAnybody();
            setrlimit(RLIMIT_NPROC, &noProcesses);
            const host::ProcessServer server;
            std::cerr << errorOf([] { Helper(answerNumber, {"0"}); });
            _exit(server.pid() == -1 ? 0 : 1);
        },
        testing::ExitedWithCode(0), "No processes can be started .*Resource temporarily");
}

TEST_F(LostServerTest, anErrorWhenTheServerMayStartNoMore) {
    EXPECT_EXIT(
        {
            becomeAnybody();
            const host::ProcessServer server;
            prlimit(server.pid(), RLIMIT_NPROC, &noProcesses, nullptr);
            std::cerr << errorOf([] { Helper(answerNumber, {"0"}); });
            _exit(0);
        },
        testing::ExitedWithCode(0), "No process can be started .*Resource temporarily");
}

} // namespace
} // namespace corvane::test
