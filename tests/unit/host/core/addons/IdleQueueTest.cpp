// Tests of work that waits for idle time.
#include "host/core/addons/IdleQueue.h"

#include "tests/support/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class IdleQueueTest : public testing::Test {
protected:
    std::function<void()> note(int number) {
        return [this, number] { ran.push_back(number); };
    }

    test::MemoryIdleTimer timer;
    IdleQueue queue{&timer};
    std::vector<int> ran;
};

TEST_F(IdleQueueTest, runsEachEntryOnceInOrder) {
    queue.add(note(1));
    queue.add(note(2));
    queue.add(note(2));
    EXPECT_THAT(ran, IsEmpty());
    queue.run();
    queue.run();
    EXPECT_THAT(ran, ElementsAre(1, 2, 2));
    EXPECT_TRUE(queue.isEmpty());
}

TEST_F(IdleQueueTest, asksForIdleTimeForEachEntry) {
    queue.add(note(1));
    queue.add(note(2));
    EXPECT_EQ(timer.requests(), 2U);
}

TEST_F(IdleQueueTest, needsNoTimer) {
    IdleQueue batch(nullptr);
    batch.add(note(1));
    batch.run();
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(IdleQueueTest, anEntryAddedWhileRunningRunsTheNextTime) {
    queue.add([this] {
        ran.push_back(1);
        queue.add(note(3));
    });
    queue.add(note(2));
    queue.run();
    EXPECT_THAT(ran, ElementsAre(1, 2));
    EXPECT_FALSE(queue.isEmpty());
    queue.run();
    EXPECT_THAT(ran, ElementsAre(1, 2, 3));
}

TEST_F(IdleQueueTest, aNestedRunTakesWhatIsLeft) {
    queue.add([this] { queue.run(); });
    queue.add(note(2));
    queue.run();
    EXPECT_THAT(ran, ElementsAre(2));
}

TEST_F(IdleQueueTest, closeDropsEverythingForGood) {
    queue.add(note(1));
    queue.close();
    queue.add(note(2));
    EXPECT_TRUE(queue.isEmpty());
    queue.run();
    EXPECT_THAT(ran, IsEmpty());
    EXPECT_EQ(timer.requests(), 1U);
}

TEST_F(IdleQueueTest, closeWhileRunningDropsTheRest) {
    queue.add([this] { queue.close(); });
    queue.add(note(2));
    queue.run();
    EXPECT_THAT(ran, IsEmpty());
}

TEST_F(IdleQueueTest, callsEntriesThroughTheCaller) {
    int calls = 0;
    IdleQueue called(nullptr, [&calls](const std::string&, const std::function<void()>& work) {
        ++calls;
        work();
    });
    called.add(note(1));
    called.add(note(2));
    called.run();
    EXPECT_EQ(calls, 2);
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

} // namespace
} // namespace corvane::host
