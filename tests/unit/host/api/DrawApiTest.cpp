// Drawing, as add-ons ask for it.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DrawApiTest : public HostTest {};

TEST_F(DrawApiTest, redrawDrawsAtOnceAtAnyLockDepth) {
    CorUtilLockStart(nullptr);
    EXPECT_EQ(CorUtilRedraw(FALSE), TRUE);
    EXPECT_EQ(CorUtilRedraw(TRUE), TRUE);
    CorUtilLockFinish(nullptr);
    ASSERT_EQ(host.renderer().renders(), 2U);
    EXPECT_FALSE(host.renderer().states()[0].allFrames);
    EXPECT_TRUE(host.renderer().states()[1].allFrames);
}

TEST_F(DrawApiTest, redrawIsRefusedAndRememberedWhileSuspended) {
    CorUtilDrawGraphics(FALSE);
    EXPECT_EQ(CorUtilRedraw(TRUE), FALSE);
    EXPECT_EQ(host.renderer().renders(), 0U);
    CorUtilDrawGraphics(TRUE);
    EXPECT_EQ(host.renderer().renders(), 0U);
    host.runIdle();
    EXPECT_EQ(host.renderer().renders(), 1U);
}

TEST_F(DrawApiTest, suspensionsNest) {
    CorUtilDrawGraphics(FALSE);
    CorUtilDrawGraphics(FALSE);
    CorUtilDrawGraphics(TRUE);
    EXPECT_EQ(CorUtilRedraw(TRUE), FALSE);
    CorUtilDrawGraphics(TRUE);
    EXPECT_EQ(CorUtilRedraw(TRUE), TRUE);
}

TEST_F(DrawApiTest, resumingTooOftenIsMisuseAndIgnored) {
    host.expectMisuse("CorUtilDrawGraphics: drawing is not suspended");
    CorUtilDrawGraphics(TRUE);
    CorUtilDrawGraphics(FALSE);
    EXPECT_EQ(CorUtilRedraw(TRUE), FALSE);
    CorUtilDrawGraphics(TRUE);
}

TEST_F(DrawApiTest, anyTruthCountsAsTrue) {
    CorUtilDrawGraphics(FALSE);
    CorUtilDrawGraphics(2);
    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilDrawGraphics(FALSE)", "CorUtilDrawGraphics(TRUE)"));
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_F(DrawApiTest, aPictureThatFailsIsReportedAndAnsweredWithFalse) {
    host.expectMisuse("CorUtilRedraw: The picture could not be drawn.");
    host.renderer().failAt(1);
    EXPECT_EQ(CorUtilRedraw(TRUE), FALSE);
    EXPECT_EQ(CorUtilRedraw(TRUE), TRUE);
}

} // namespace
} // namespace corvane::test
