// The walks over the frames of a page.
#include "addon/engine/FramePopper.h"
#include "addon/engine/FramePopperAbstractFactory.h"
#include "addon/engine/FramePopperLightweight.h"
#include "hostapi/CorHost.h"
#include "tests/unit/addon/EngineTest.h"

namespace corvane::test {
namespace {

using corutiltools::FramePopper;
using corutiltools::FramePopperAbstract;
using corutiltools::FramePopperAbstractFactory;
using corutiltools::FramePopperLightweight;

// Three frames; a is on top and active.
class FramePopperTest : public EngineTest {
protected:
    FramePopperTest()
        : c(frame().id()), b(page().createFrame({}).id()), a(page().createFrame({}).id()) {
        host.clearCalls();
    }

    host::Page& page() { return host.session().silentPage(); }

    std::vector<long> stack() {
        std::vector<long> ids;
        for (const auto& one : page().frames()) {
            ids.push_back(one->id());
        }
        return ids;
    }

    // The frames that queries speak of, one after the other.
    std::vector<long> walked(FramePopperAbstract& popper) {
        std::vector<long> ids;
        do {
            ids.push_back(CorUtilFrameGetUniqueID());
        } while (popper.next());
        return ids;
    }

    const long c;
    const long b;
    const long a;
};

TEST_F(FramePopperTest, fullVisitsEveryFrameFromTheTop) {
    FramePopper popper;
    EXPECT_TRUE(popper.next());
    EXPECT_EQ(page().active()->id(), b);
    EXPECT_TRUE(popper.next());
    EXPECT_EQ(page().active()->id(), c);
    EXPECT_FALSE(popper.next());
    EXPECT_EQ(page().active()->id(), a);
    EXPECT_FALSE(popper.next());
    EXPECT_EQ(page().active()->id(), a);
}

TEST_F(FramePopperTest, fullSuspendsDrawingUnderOneLock) {
    {
        const FramePopper popper;
        EXPECT_EQ(host.session().locks().depth(), 1);
        EXPECT_EQ(host.session().drawing().suspensions(), 1);
    }
    EXPECT_EQ(host.session().locks().depth(), 0);
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_F(FramePopperTest, fullCallsTheHostInOrder) {
    {
        const FramePopper popper;
        EXPECT_THAT(callNames(), ElementsAre("CorUtilLockStart", "CorUtilFrameGetUniqueID",
                                             "CorUtilFrameActivateTop", "CorUtilFrameGetUniqueID",
                                             "CorUtilDrawGraphics(FALSE)"));
        host.clearCalls();
    }
    EXPECT_THAT(callNames(),
                ElementsAre("CorUtilFramePushTop", "CorUtilFrameGetUniqueID", "CorUtilFramePushTop",
                            "CorUtilFrameGetUniqueID", "CorUtilFramePushTop",
                            "CorUtilFrameGetUniqueID", "CorUtilFrameActivateByUniqueID",
                            "CorUtilDrawGraphics(TRUE)", "CorUtilLockFinish"));
}

TEST_F(FramePopperTest, fullPutsStackAndActiveFrameBackFromAnywhere) {
    for (int steps = 0; steps < 4; ++steps) {
        page().activate(b);
        {
            FramePopper popper;
            for (int step = 0; step < steps; ++step) {
                popper.next();
            }
        }
        EXPECT_THAT(stack(), ElementsAre(a, b, c)) << steps;
        EXPECT_EQ(page().active()->id(), b) << steps;
    }
}

TEST_F(FramePopperTest, fullOverOneFrameHasNoFurtherOne) {
    page().deleteFrame(a);
    page().deleteFrame(b);
    FramePopper popper;
    EXPECT_THAT(walked(popper), ElementsAre(c));
}

TEST_F(FramePopperTest, fullOverAnEmptyPageEnds) {
    page().deleteFrame(a);
    page().deleteFrame(b);
    page().deleteFrame(c);
    // There is no frame to activate again.
    host.expectMisuse("CorUtilFrameActivateByUniqueID: no such frame");
    FramePopper popper;
    EXPECT_FALSE(popper.next());
}

TEST_F(FramePopperTest, lightweightVisitsEveryFrameAndChangesNothing) {
    page().activate(b);
    {
        FramePopperLightweight popper;
        EXPECT_THAT(walked(popper), ElementsAre(a, b, c));
        EXPECT_THAT(stack(), ElementsAre(a, b, c));
        EXPECT_EQ(page().active()->id(), b);
        EXPECT_EQ(host.session().drawing().suspensions(), 0);
    }
    EXPECT_EQ(CorUtilFrameGetUniqueID(), b);
}

TEST_F(FramePopperTest, lightweightCallsTheHostInOrder) {
    {
        FramePopperLightweight popper;
        EXPECT_THAT(callNames(),
                    ElementsAre("CorUtilLockStart", "CorUtilFrameLightweightPopStart"));
        popper.next();
        host.clearCalls();
    }
    EXPECT_THAT(callNames(),
                ElementsAre("CorUtilFrameLightweightPopNext", "CorUtilFrameLightweightPopNext",
                            "CorUtilFrameLightweightPopEnd", "CorUtilLockFinish"));
}

TEST_F(FramePopperTest, popsTheRestAtOnce) {
    FramePopper popper;
    popper.popRemainingFrames();
    EXPECT_EQ(page().active()->id(), a);
    EXPECT_FALSE(popper.next());
}

TEST_F(FramePopperTest, poppersAliveAreCounted) {
    EXPECT_EQ(FramePopperAbstract::numActivePoppers(), 0u);
    {
        const FramePopper full;
        const FramePopperLightweight lightweight;
        EXPECT_EQ(FramePopperAbstract::numActivePoppers(), 2u);
    }
    EXPECT_EQ(FramePopperAbstract::numActivePoppers(), 0u);
}

TEST_F(FramePopperTest, factoryMakesWhatIsAskedFor) {
    const FramePopperAbstractFactory factory;
    EXPECT_NE(dynamic_cast<FramePopper*>(factory.getFramePopper(true).get()), nullptr);
    EXPECT_NE(dynamic_cast<FramePopperLightweight*>(factory.getFramePopper(false).get()), nullptr);
}

} // namespace
} // namespace corvane::test
