// In which order the worker works, and what ends it.
#include "host/scene/ahead/ReadAhead.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

namespace corvane::test {

namespace {

using testing::ElementsAre;

/// Steps that note their number, and a worker that can be held up.
class ReadAheadTest : public testing::Test {
protected:
    scene::ReadAhead::Steps notes(std::vector<int> numbers) {
        scene::ReadAhead::Steps steps;
        for (const int number : numbers) {
            steps.emplace_back([this, number] { done.push_back(number); });
        }
        return steps;
    }
    /// Returns when the worker stands in a step that lasts until letGo().
    void holdUp() {
        ahead.start(&holder, {[this] {
            isHeld.count_down();
            mayGo.wait();
        }});
        isHeld.wait();
    }
    void letGo() { mayGo.count_down(); }

    std::vector<int> done; ///< read after wait() only
    int holder = 0;
    int first = 0;
    int second = 0;
    std::latch isHeld{1};
    std::latch mayGo{1};
    scene::ReadAhead ahead;
};

} // namespace

TEST_F(ReadAheadTest, runsStepsInOrderOnAnotherThread) {
    std::thread::id worker;
    ahead.start(&first, {[&] { worker = std::this_thread::get_id(); }});
    ahead.start(&second, notes({1, 2, 3}));
    ahead.wait();
    EXPECT_NE(worker, std::this_thread::get_id());
    EXPECT_THAT(done, ElementsAre(1, 2, 3));
}

TEST_F(ReadAheadTest, newWorkReplacesWhatTheSameOwnerLetWait) {
    holdUp();
    ahead.start(&first, notes({1, 2}));
    ahead.start(&second, notes({3}));
    ahead.start(&first, notes({4}));
    letGo();
    ahead.wait();
    EXPECT_THAT(done, ElementsAre(3, 4));
}

TEST_F(ReadAheadTest, noWorkTakesWhatWaitsBack) {
    holdUp();
    ahead.start(&first, notes({1, 2}));
    ahead.start(&first, {});
    letGo();
    ahead.wait();
    EXPECT_TRUE(done.empty());
}

TEST_F(ReadAheadTest, aFailureEndsTheWorkOfItsOwnerAlone) {
    holdUp();
    scene::ReadAhead::Steps failing = notes({1});
    failing.emplace_back([] { throw std::runtime_error("unreadable"); });
    failing.push_back(notes({2}).front());
    ahead.start(&first, std::move(failing));
    ahead.start(&second, notes({3}));
    letGo();
    ahead.wait();
    EXPECT_THAT(done, ElementsAre(1, 3));
}

// Failing steps end the work they belong to, not what the same owner began since.
TEST_F(ReadAheadTest, aFailureLeavesLaterWorkOfItsOwner) {
    ahead.start(&first, {[this] {
                             isHeld.count_down();
                             mayGo.wait();
                             throw std::runtime_error("unreadable");
                         },
                         notes({1}).front()});
    isHeld.wait();
    ahead.start(&first, notes({2}));
    letGo();
    ahead.wait();
    EXPECT_THAT(done, ElementsAre(2));
}

// What the drawing thread does between two pictures, many times.
TEST_F(ReadAheadTest, nothingRunsForAnOwnerThatCancelled) {
    std::atomic<bool> isCancelled = false;
    std::atomic<int> early = 0;
    std::atomic<int> late = 0;
    for (int round = 0; round < 2000; ++round) {
        isCancelled = false;
        scene::ReadAhead::Steps steps(3, [&] { ++(isCancelled ? late : early); });
        ahead.start(&first, steps);
        ahead.start(&second, {[] {}});
        ahead.cancel(&first);
        isCancelled = true;
    }
    ahead.wait();
    EXPECT_EQ(late, 0);
}

TEST_F(ReadAheadTest, cancellingLeavesWhatOthersWait) {
    holdUp();
    ahead.start(&first, notes({1}));
    ahead.start(&second, notes({2}));
    ahead.cancel(&first);
    letGo();
    ahead.wait();
    EXPECT_THAT(done, ElementsAre(2));
}

TEST_F(ReadAheadTest, pausesBetweenTwoSteps) {
    int shared = 0; // not atomic: thread checkers see who touches it at the same time
    for (int round = 0; round < 500; ++round) {
        ahead.start(&first, {[&] { ++shared; }, [&] { ++shared; }});
        const scene::ReadAhead::Pause pause(ahead);
        ++shared;
    }
    ahead.wait();
    EXPECT_GE(shared, 500);
}

TEST_F(ReadAheadTest, whoeverUsesMeshesKeepsTheWorkerWaiting) {
    auto pause = std::make_unique<scene::ReadAhead::Pause>(ahead);
    ahead.start(&first, notes({1}));
    EXPECT_TRUE(done.empty()); // nobody else may write now
    pause.reset();
    ahead.wait();
    EXPECT_THAT(done, ElementsAre(1));
}

TEST(ReadAhead, endsThoughWorkWaits) {
    int owner = 0;
    std::latch isRunning(1);
    std::latch mayGo(1);
    auto ahead = std::make_unique<scene::ReadAhead>();
    ahead->start(&owner, {[&] {
        isRunning.count_down();
        mayGo.wait();
    }});
    isRunning.wait();
    ahead->start(&ahead, {[] {}, [] {}});
    mayGo.count_down();
    ahead.reset();
}

} // namespace corvane::test
