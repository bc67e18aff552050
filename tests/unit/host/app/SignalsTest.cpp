// Tests of the signals that stop a run, each in a process of its own.
#include "host/app/Signals.h"

#include <gtest/gtest.h>

#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace corvane::test {
namespace {

void sendFromTheSystem(int signal) {
    siginfo_t information{};
    information.si_signo = signal;
    information.si_code = SI_KERNEL;
    ::syscall(SYS_rt_sigqueueinfo, ::getpid(), signal, &information);
}

/// Ends with 0 after a stop that was heard.
[[noreturn]] void exitStopped() {
    std::_Exit(app::isStopSignalled() ? 0 : 1);
}

class SignalsDeathTest : public testing::Test {
protected:
    SignalsDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(SignalsDeathTest, theFirstOneIsAWish) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        EXPECT_EXIT(
            {
                app::watchStopSignals();
                std::raise(signal);
                exitStopped();
            },
            testing::ExitedWithCode(0), "");
    }
}

TEST_F(SignalsDeathTest, theSecondOneEndsTheProcessWhateverTheyAre) {
    for (const int first : {SIGINT, SIGTERM, SIGHUP}) {
        for (const int second : {SIGINT, SIGTERM, SIGHUP}) {
            EXPECT_EXIT(
                {
                    app::watchStopSignals();
                    std::raise(first);
                    std::raise(second);
                    exitStopped();
                },
                testing::KilledBySignal(second), "")
                << first << " " << second;
        }
    }
}

TEST_F(SignalsDeathTest, aTerminalThatGoesIsOneStop) {
    EXPECT_EXIT(
        {
            app::watchStopSignals();
            std::raise(SIGHUP);        // its shell
            sendFromTheSystem(SIGHUP); // the system
            exitStopped();
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(SignalsDeathTest, aTerminalThatGoesAfterCtrlCEndsTheProcess) {
    EXPECT_EXIT(
        {
            app::watchStopSignals();
            sendFromTheSystem(SIGINT);
            sendFromTheSystem(SIGHUP);
            exitStopped();
        },
        testing::KilledBySignal(SIGHUP), "");
}

TEST_F(SignalsDeathTest, aHangUpThatIsIgnoredStaysSo) {
    EXPECT_EXIT(
        {
            std::signal(SIGHUP, SIG_IGN);
            app::watchStopSignals();
            std::raise(SIGHUP);
            std::raise(SIGTERM);
            exitStopped();
        },
        testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace corvane::test
