// In which order the worker works, and what ends it.
#include "host/scene/ahead/ReadAhead.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <latch>
#include <memory>
#include <mutex>
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

TEST_F(ReadAheadTest, whoeverUsesMeshesKeepsTheWorkerWaiting) {
    std::unique_lock lock(ahead.meshMutex());
    ahead.start(&first, notes({1}));
    EXPECT_TRUE(done.empty()); // nobody else may write now
    lock.unlock();
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
    std::unique_lock lock(ahead->meshMutex(), std::try_to_lock);
    EXPECT_FALSE(lock.owns_lock()) << "the step holds the meshes";
    ahead->start(&ahead, {[] {}, [] {}});
    mayGo.count_down();
    ahead.reset();
}

} // namespace corvane::test
