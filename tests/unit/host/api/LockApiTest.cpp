// Locks.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;

class LockApiTest : public HostTest {
protected:
    std::vector<std::string> traceLines() const {
        std::vector<std::string> lines;
        for (const host::TraceRecord& record : host.records()) {
            lines.push_back(host::toString(record));
        }
        return lines;
    }

    CorAddOnID kites = CorUtilAddOnRegister(110, "Kites", "1", "S");
    CorAddOnID gliders = CorUtilAddOnRegister(110, "Gliders", "1", "S");
};

TEST_F(LockApiTest, locksNestAndTheTraceCarriesTheDepth) {
    host.clearCalls();
    CorUtilLockStart(kites);
    CorUtilLockStart(gliders);
    CorUtilRedraw(FALSE);
    CorUtilLockFinish(kites);
    CorUtilLockFinish(gliders);
    EXPECT_THAT(traceLines(),
                ElementsAre("CorUtilLockStart(\"Kites\") [1]", "CorUtilLockStart(\"Gliders\") [2]",
                            "CorUtilRedraw(FALSE) = TRUE [2]", "CorUtilLockFinish(\"Kites\") [1]",
                            "CorUtilLockFinish(\"Gliders\") [0]"));
}

TEST_F(LockApiTest, locksCountForTheirOwner) {
    CorUtilLockStart(kites);
    CorUtilLockStart(kites);
    CorUtilLockStart(gliders);
    EXPECT_EQ(host.session().locks().depthOf(kites), 2);
    EXPECT_EQ(host.session().locks().depthOf(gliders), 1);
    CorUtilLockFinish(kites);
    CorUtilLockFinish(kites);
    CorUtilLockFinish(gliders);
}

TEST_F(LockApiTest, theLastReleaseDrawsWhatIsDue) {
    CorUtilLockStart(kites);
    CorUtilLockStart(kites);
    CorUtilSolutionTimeSetCurrent(1.0);
    CorUtilLockFinish(kites);
    EXPECT_EQ(host.renderer().renders(), 0U);
    CorUtilLockFinish(kites);
    EXPECT_EQ(host.renderer().renders(), 1U);
    CorUtilLockStart(kites);
    CorUtilLockFinish(kites);
    EXPECT_EQ(host.renderer().renders(), 1U);
}

TEST_F(LockApiTest, theReleaseDrawsNothingWhileDrawingIsSuspended) {
    CorUtilDrawGraphics(FALSE);
    CorUtilLockStart(kites);
    CorUtilSolutionTimeSetCurrent(1.0);
    CorUtilLockFinish(kites);
    EXPECT_EQ(host.renderer().renders(), 0U);
    CorUtilDrawGraphics(TRUE);
}

TEST_F(LockApiTest, aPictureThatFailsLeavesTheLockReleased) {
    host.expectMisuse("CorUtilLockFinish: The picture could not be drawn.");
    CorUtilLockStart(kites);
    CorUtilSolutionTimeSetCurrent(1.0);
    host.renderer().failAt(1);
    CorUtilLockFinish(kites);
    EXPECT_EQ(host.session().locks().depth(), 0);
}

TEST_F(LockApiTest, aReleaseWithoutALockIsMisuse) {
    host.expectMisuse("CorUtilLockFinish: no such lock is held");
    host.expectMisuse("CorUtilLockOff: no such lock is held");
    CorUtilLockFinish(kites);
    CorUtilLockOff();
    CorUtilLockStart(kites);
    CorUtilLockFinish(gliders);
    EXPECT_EQ(host.session().locks().depth(), 1);
    CorUtilLockFinish(kites);
    EXPECT_EQ(host.misuse().size(), 3U);
}

TEST_F(LockApiTest, theEntryPointsLockHasNoOwner) {
    CorUtilLockOn();
    EXPECT_EQ(host.session().locks().depthOf(nullptr), 1);
    CorUtilLockOff();
}

TEST_F(LockApiTest, anUnknownIdIsMisuseAndCountsAsNone) {
    host.expectMisuse("CorUtilLockStart: unknown add-on");
    host.expectMisuse("CorUtilLockFinish: unknown add-on");
    CorAddOn_s stranger;
    CorUtilLockStart(&stranger);
    EXPECT_EQ(host.session().locks().depthOf(nullptr), 1);
    CorUtilLockFinish(&stranger);
    EXPECT_EQ(host.calls().back(), "CorUtilLockFinish(unknown)");
}

} // namespace
} // namespace corvane::test
