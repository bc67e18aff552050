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
        const HostLock lock;
        EXPECT_EQ(host.session().locks().depth(), 1);
        const HostLock nested;
        EXPECT_EQ(host.session().locks().depth(), 2);
    }
    EXPECT_EQ(host.session().locks().depth(), 0);
}

TEST_F(SuspendTest, graphicsLocksBeforeItSuspendsAndUndoesBothInReverse) {
    {
        const SuspendGraphics suspended;
        EXPECT_THAT(callNames(), ElementsAre("CorUtilLockStart", "CorUtilDrawGraphics(FALSE)"));
        host.clearCalls();
    }
    EXPECT_THAT(callNames(), ElementsAre("CorUtilDrawGraphics(TRUE)", "CorUtilLockFinish"));
}

TEST_F(SuspendTest, graphicsGuardsNest) {
    {
        const SuspendGraphics outer;
        { const SuspendGraphics inner; }
        EXPECT_EQ(host.session().drawing().suspensions(), 1);
        EXPECT_EQ(host.session().locks().depth(), 1);
    }
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_F(SuspendTest, graphicsComeBackWhenAnExceptionPasses) {
    EXPECT_THROW(
        {
            const SuspendGraphics suspended;
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
        const SuspendDisplayLists off;
        EXPECT_FALSE(usesDisplayLists());
    }
    EXPECT_TRUE(usesDisplayLists());
}

TEST_F(SuspendTest, displayListsThatWereOffStayOff) {
    toolbox::StyleValue("Interface").setBoolean(false, "UseDisplayLists");
    { const SuspendDisplayLists off; }
    EXPECT_FALSE(usesDisplayLists());
}

TEST_F(SuspendTest, displayListsThatCannotBeReadCountAsOff) {
    host.failNext("CorUtilStyleGet");
    { const SuspendDisplayLists off; }
    EXPECT_FALSE(usesDisplayLists());
}

} // namespace
} // namespace corvane::test
