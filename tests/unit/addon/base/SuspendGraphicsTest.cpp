// The guard that suspends drawing.
#include "addon/base/SuspendGraphics.h"

#include "tests/unit/addon/EngineTest.h"

#include <stdexcept>

namespace corvane::test {
namespace {

using corutiltools::SuspendGraphics;

using SuspendGraphicsTest = EngineTest;

TEST_F(SuspendGraphicsTest, graphicsLocksBeforeItSuspendsAndUndoesBothInReverse) {
    {
        const SuspendGraphics suspended;
        EXPECT_THAT(callNames(), ElementsAre("CorUtilLockStart", "CorUtilDrawGraphics(FALSE)"));
        host.clearCalls();
    }
    EXPECT_THAT(callNames(), ElementsAre("CorUtilDrawGraphics(TRUE)", "CorUtilLockFinish"));
}

TEST_F(SuspendGraphicsTest, graphicsGuardsNest) {
    {
        const SuspendGraphics outer;
        { const SuspendGraphics inner; }
        EXPECT_EQ(host.session().drawing().suspensions(), 1);
        EXPECT_EQ(host.session().locks().depth(), 1);
    }
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_F(SuspendGraphicsTest, graphicsComeBackWhenAnExceptionPasses) {
    EXPECT_THROW(
        {
            const SuspendGraphics suspended;
            throw std::runtime_error("passing");
        },
        std::runtime_error);
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
    EXPECT_EQ(host.session().locks().depth(), 0);
}

TEST_F(SuspendGraphicsTest, graphicsThatCannotBeSuspendedLeaveNoLock) {
    host.throwAt("CorUtilDrawGraphics", 1);
    EXPECT_THROW(SuspendGraphics(), std::runtime_error);
    EXPECT_EQ(host.session().locks().depth(), 0);
}

} // namespace
} // namespace corvane::test
