// The guards that suspend drawing and display lists.
#include "addon/base/HostLock.h"
#include "addon/base/SuspendGraphics.h"
#include "addon/engine/SuspendDisplayLists.h"
#include "hostapi/CorHost.h"
#include "tests/unit/addon/EngineTest.h"

#include <stdexcept>

namespace corvane::test {
namespace {

using corutiltools::HostLock;
using corutiltools::SuspendDisplayLists;
using corutiltools::SuspendGraphics;

class SuspendTest : public EngineTest {};

TEST_F(SuspendTest, hostLockHoldsOneLock) {
    {
        HostLock const lock;
        EXPECT_EQ(host.session().locks().depth(), 1);
        HostLock const nested;
        EXPECT_EQ(host.session().locks().depth(), 2);
    }
    EXPECT_EQ(host.session().locks().depth(), 0);
}

TEST_F(SuspendTest, graphicsLocksBeforeItSuspendsAndUndoesBothInReverse) {
    {
        SuspendGraphics const suspended;
        EXPECT_THAT(callNames(), ElementsAre("CorUtilLockStart", "CorUtilDrawGraphics(FALSE)"));
        host.clearCalls();
    }
    EXPECT_THAT(callNames(), ElementsAre("CorUtilDrawGraphics(TRUE)", "CorUtilLockFinish"));
}

TEST_F(SuspendTest, graphicsGuardsNest) {
    {
        SuspendGraphics const outer;
        { SuspendGraphics const inner; }
        EXPECT_EQ(host.session().drawing().suspensions(), 1);
        EXPECT_EQ(host.session().locks().depth(), 1);
    }
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_F(SuspendTest, graphicsComeBackWhenAnExceptionPasses) {
    EXPECT_THROW(
        {
            SuspendGraphics const suspended;
            throw std::runtime_error("passing");
        },
        std::runtime_error);
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
    EXPECT_EQ(host.session().locks().depth(), 0);
}

TEST_F(SuspendTest, graphicsThatCannotBeSuspendedLeaveNoLock) {
    host.throwAt("CorUtilDrawGraphics", 1);
    EXPECT_THROW(SuspendGraphics(), std::runtime_error);
    EXPECT_EQ(host.session().locks().depth(), 0);
}

TEST_F(SuspendTest, displayListsAreOffForTheScope) {
    {
        SuspendDisplayLists const off;
        EXPECT_FALSE(usesDisplayLists());
    }
    EXPECT_TRUE(usesDisplayLists());
}

TEST_F(SuspendTest, displayListsThatWereOffStayOff) {
    toolbox::StyleValue("Interface").setBoolean(false, "UseDisplayLists");
    { SuspendDisplayLists const off; }
    EXPECT_FALSE(usesDisplayLists());
}

TEST_F(SuspendTest, displayListsThatCannotBeReadCountAsOff) {
    host.failNext("CorUtilStyleGet");
    { SuspendDisplayLists const off; }
    EXPECT_FALSE(usesDisplayLists());
}

} // namespace
} // namespace corvane::test
