// The percent-done indicator.
#include "addon/engine/Status.h"

#include "tests/unit/addon/EngineTest.h"

namespace corvane::test {
namespace {

using corutiltools::Status;

class StatusTest : public EngineTest {};

TEST_F(StatusTest, showsMessageWithHintAndStopButton) {
    const Status status(4.0, "Working....");
    EXPECT_THAT(calls(), ElementsAre("CorUtilStatusStartPercentDone(\"Working.... Press [Esc] or "
                                     "click [Stop] to cancel.\", TRUE, TRUE)"));
}

TEST_F(StatusTest, endsTheDisplay) {
    {
        const Status status(4.0, "Working....");
        host.clearCalls();
    }
    EXPECT_THAT(calls(), ElementsAre("CorUtilStatusFinishPercentDone()"));
}

TEST_F(StatusTest, reportsPercentOfTheStepsAndNeverMoreThanAll) {
    Status status(4.0, "Working....");
    host.clearCalls();
    for (int step = 0; step < 5; ++step) {
        ++status;
    }
    EXPECT_THAT(calls(), ElementsAre("CorUtilStatusCheckPercentDone(25)",
                                     "CorUtilStatusCheckPercentDone(50)",
                                     "CorUtilStatusCheckPercentDone(75)",
                                     "CorUtilStatusCheckPercentDone(100)",
                                     "CorUtilStatusCheckPercentDone(100)"));
}

TEST_F(StatusTest, cutsPercentOff) {
    Status status(3.0, "Working....");
    host.clearCalls();
    ++status;
    ++status;
    EXPECT_THAT(calls(), ElementsAre("CorUtilStatusCheckPercentDone(33)",
                                     "CorUtilStatusCheckPercentDone(66)"));
}

TEST_F(StatusTest, updateReportsWithoutAStep) {
    Status status(4.0, "Working....");
    host.clearCalls();
    status.update();
    ++status;
    status.update();
    EXPECT_THAT(calls(),
                ElementsAre("CorUtilStatusCheckPercentDone(0)", "CorUtilStatusCheckPercentDone(25)",
                            "CorUtilStatusCheckPercentDone(25)"));
}

TEST_F(StatusTest, withoutStepsOffersNothingAndReportsNothing) {
    for (double total : {0.0, -1.0}) {
        host.clearCalls();
        Status status(total, "Working....");
        ++status;
        status.update();
        EXPECT_FALSE(status.isCanceled());
        EXPECT_THAT(calls(), ElementsAre("CorUtilStatusStartPercentDone(\"Working.... Press [Esc] "
                                         "or click [Stop] to cancel.\", FALSE, FALSE)"));
    }
}

TEST_F(StatusTest, learnsThatTheUserStopped) {
    Status status(4.0, "Working....");
    EXPECT_FALSE(status.isCanceled());
    host.stopAtCheck(2);
    ++status;
    EXPECT_FALSE(status.isCanceled());
    ++status;
    EXPECT_TRUE(status.isCanceled());
}

TEST_F(StatusTest, updateLearnsItToo) {
    Status status(4.0, "Working....");
    host.stopAtCheck(1);
    status.update();
    EXPECT_TRUE(status.isCanceled());
}

TEST_F(StatusTest, changesTheMessage) {
    const Status status(4.0, "Working....");
    host.clearCalls();
    status.setMessage("Nearly done....");
    EXPECT_THAT(calls(), ElementsAre("CorUtilStatusSetPercentDoneText(\"Nearly done.... Press "
                                     "[Esc] or click [Stop] to cancel.\")"));
}

TEST_F(StatusTest, appendsAnyHint) {
    const Status status(4.0, "Working....", 0, "!");
    EXPECT_EQ(status.buildStatusMessage("Stop"), "Stop!");
    EXPECT_EQ(status.buildStatusMessage(""), "!");
}

TEST_F(StatusTest, leavesMessagesUnchangedInModeOneOnly) {
    {
        const Status status(4.0, "Working....", 1);
        EXPECT_EQ(status.buildStatusMessage("Working...."), "Working....");
    }
    const Status status(4.0, "Working....", 2, "!");
    EXPECT_EQ(status.buildStatusMessage("Working...."), "Working....!");
}

} // namespace
} // namespace corvane::test
