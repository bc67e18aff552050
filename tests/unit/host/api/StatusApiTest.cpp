// The percent-done display.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

class StatusApiTest : public EmptyHostTest {};

TEST_F(StatusApiTest, theDisplayShowsWhatItIsTold) {
    CorUtilStatusStartPercentDone("Press [Esc]", TRUE, FALSE);
    CorUtilStatusSetPercentDoneText("Exporting");
    EXPECT_EQ(CorUtilStatusCheckPercentDone(-3), TRUE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(50), TRUE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(101), TRUE);
    CorUtilStatusFinishPercentDone();
    EXPECT_THAT(host.status().events(),
                ElementsAre("start \"Press [Esc]\" stop", "text \"Exporting\"", "percent 0",
                            "percent 50", "percent 100", "finish"));
    EXPECT_THAT(host.status().texts(), ElementsAre("Press [Esc]", "Exporting"));
    EXPECT_THAT(host.status().percents(), ElementsAre(0, 50, 100));
}

TEST_F(StatusApiTest, aStopLastsUntilTheDisplayIsFinished) {
    host.stopAtCheck(1);
    CorUtilStatusStartPercentDone("a", FALSE, TRUE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(1), FALSE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(2), FALSE);
    CorUtilStatusFinishPercentDone();
    CorUtilStatusStartPercentDone("b", FALSE, TRUE);
    EXPECT_EQ(CorUtilStatusCheckPercentDone(1), TRUE);
    CorUtilStatusFinishPercentDone();
}

TEST_F(StatusApiTest, theOutermostPairCounts) {
    CorUtilStatusStartPercentDone("outer", TRUE, TRUE);
    CorUtilStatusStartPercentDone("inner", TRUE, TRUE);
    CorUtilStatusFinishPercentDone();
    EXPECT_TRUE(host.status().isUp());
    CorUtilStatusFinishPercentDone();
    EXPECT_THAT(host.status().events(), ElementsAre("start \"outer\" stop bar", "finish"));
}

TEST_F(StatusApiTest, aFinishWithoutStartIsMisuse) {
    host.expectMisuse("CorUtilStatusFinishPercentDone: no display is open");
    CorUtilStatusFinishPercentDone();
    EXPECT_TRUE(host.status().events().empty());
}

TEST_F(StatusApiTest, aMissingTextIsMisuseAndTheDisplayStillOpens) {
    host.expectMisuse("CorUtilStatusStartPercentDone: text is NULL");
    host.expectMisuse("CorUtilStatusSetPercentDoneText: text is NULL");
    CorUtilStatusStartPercentDone(nullptr, FALSE, FALSE);
    CorUtilStatusSetPercentDoneText(nullptr);
    CorUtilStatusFinishPercentDone();
    EXPECT_THAT(host.status().events(), ElementsAre("start \"\"", "finish"));
}

} // namespace
} // namespace corvane::test
