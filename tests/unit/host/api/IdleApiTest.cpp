// The idle queue.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

#include <stdexcept>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<long> ran;

void note(long clientData) {
    ran.push_back(clientData);
}
void noteAndQueueAgain(long clientData) {
    note(clientData);
    CorUtilOnIdleQueueAddCallback(&note, clientData + 1);
}
void lockAndThrow(long) {
    CorUtilLockStart(nullptr);
    CorUtilDrawGraphics(FALSE);
    throw std::runtime_error("idle work failed");
}

class IdleApiTest : public EmptyHostTest {
protected:
    IdleApiTest() { ran.clear(); }
};

TEST_F(IdleApiTest, workRunsOnceAndInOrder) {
    EXPECT_EQ(CorUtilOnIdleQueueAddCallback(&note, 1), TRUE);
    EXPECT_EQ(CorUtilOnIdleQueueAddCallback(&note, -2), TRUE);
    EXPECT_EQ(CorUtilOnIdleQueueAddCallback(&note, 1), TRUE);
    EXPECT_THAT(ran, IsEmpty());
    EXPECT_GE(host.idleRequests(), 1U);
    host.runIdle();
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre(1, -2, 1));
}

TEST_F(IdleApiTest, workThatQueuesItselfRunsTheNextTime) {
    CorUtilOnIdleQueueAddCallback(&noteAndQueueAgain, 1);
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre(1));
    host.runIdle();
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

TEST_F(IdleApiTest, aLockDoesNotDeferIt) {
    CorUtilLockStart(nullptr);
    CorUtilOnIdleQueueAddCallback(&note, 1);
    host.runIdle();
    CorUtilLockFinish(nullptr);
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(IdleApiTest, anExceptionIsShownAndLocksAreRestored) {
    CorUtilOnIdleQueueAddCallback(&lockAndThrow, 0);
    CorUtilOnIdleQueueAddCallback(&note, 1);
    host.runIdle();
    EXPECT_THAT(host.prompts().shown(ShownDialog::Kind::Error), ElementsAre("idle work failed"));
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(IdleApiTest, afterTheEndNothingIsQueued) {
    CorUtilOnIdleQueueAddCallback(&note, 1);
    host.session().quit();
    EXPECT_EQ(CorUtilOnIdleQueueAddCallback(&note, 2), FALSE);
    host.runIdle();
    EXPECT_THAT(ran, IsEmpty());
}

TEST_F(IdleApiTest, nullIsMisuse) {
    host.expectMisuse("CorUtilOnIdleQueueAddCallback: f is NULL");
    EXPECT_EQ(CorUtilOnIdleQueueAddCallback(nullptr, 1), FALSE);
}

} // namespace
} // namespace corvane::test
