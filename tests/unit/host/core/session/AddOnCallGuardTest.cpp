// Tests of what add-ons throw and leave behind.
#include "host/core/session/AddOnCallGuard.h"

#include "tests/unit/host/core/session/SessionTest.h"

#include <stdexcept>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AddOnCallGuardTest : public SessionTest {
protected:
    CorAddOnID addOn = session.addOns().add({110, "Careless", "1", "somebody"});
};

TEST_F(AddOnCallGuardTest, letsCallsThrough) {
    bool called = false;
    EXPECT_EQ(session.callAddOn("call", [&called] { called = true; }), "");
    EXPECT_TRUE(called);
    EXPECT_THAT(host.misuse(), IsEmpty());
}

TEST_F(AddOnCallGuardTest, catchesWhateverIsThrown) {
    EXPECT_EQ(session.callAddOn("call", [] { throw std::out_of_range("row 7"); }), "row 7");
    EXPECT_EQ(session.callAddOn("call", [] { throw 7; }),
              "The add-on failed for an unknown reason.");
    EXPECT_NE(session.callAddOn("call", [] { throw std::runtime_error(""); }), "");
}

TEST_F(AddOnCallGuardTest, putsLocksAndSuspensionsBackAfterAnException) {
    session.locks().start(addOn);
    session.drawing().suspend();
    session.callAddOn("call", [this] {
        session.locks().start(addOn);
        session.locks().start(nullptr);
        session.drawing().suspend();
        throw std::runtime_error("oops");
    });
    EXPECT_EQ(session.locks().depth(), 1);
    EXPECT_EQ(session.locks().depthOf(addOn), 1);
    EXPECT_EQ(session.drawing().suspensions(), 1);
    session.drawing().resume();
    session.locks().finish(addOn);
}

TEST_F(AddOnCallGuardTest, asksForThePictureThatTheLeftLocksHeldBack) {
    open();
    session.callAddOn("call", [this] {
        session.locks().start(addOn);
        session.drawing().suspend();
        session.setStyle({"ThreeDView", "PSIAngle"}, 1.0);
        throw std::runtime_error("oops");
    });
    EXPECT_GT(host.idleRequests(), 0U);
    session.onIdle();
    EXPECT_EQ(session.drawing().renders(), 2U);
    EXPECT_FALSE(session.drawing().isMarked());
}

TEST_F(AddOnCallGuardTest, putsBackWhatAnOrderlyCallLeftAndTellsTheTrace) {
    host.expectMisuse("is not balanced");
    host.expectMisuse("are not balanced");
    open();
    session.locks().start(nullptr);
    EXPECT_EQ(session.callAddOn("taking", [this] { session.locks().start(addOn); }), "");
    EXPECT_EQ(session.locks().depth(), 1);
    EXPECT_EQ(session.callAddOn("giving", [this] { session.locks().finish(nullptr); }), "");
    EXPECT_EQ(session.locks().depth(), 1);
    EXPECT_EQ(session.callAddOn("suspending", [this] { session.drawing().suspend(); }), "");
    EXPECT_EQ(session.drawing().suspensions(), 0);
    EXPECT_THAT(host.misuse(),
                ElementsAre("taking: locks are not balanced (1 before, 2 after)",
                            "giving: locks are not balanced (1 before, 0 after)",
                            "suspending: suspended drawing is not balanced (0 before, 1 after)"));
    session.locks().finish(nullptr);
}

TEST_F(AddOnCallGuardTest, drawsWhatAForgottenLockHeldBack) {
    host.expectMisuse("locks are not balanced");
    open();
    session.onIdle();
    const auto renders = session.drawing().renders();
    session.callAddOn("call", [this] {
        session.locks().start(addOn);
        session.setStyle({"ThreeDView", "PSIAngle"}, 1.0);
    });
    session.onIdle();
    EXPECT_EQ(session.drawing().renders(), renders + 1);
}

TEST_F(AddOnCallGuardTest, tellsTheTraceWhatWasThrown) {
    std::vector<std::string> exceptions;
    session.trace().onException = [&](const std::string& what) { exceptions.push_back(what); };
    session.callAddOn("idle work of libBad.so", [] { throw std::out_of_range("row 7"); });
    EXPECT_THAT(exceptions, ElementsAre("idle work of libBad.so: row 7"));
    EXPECT_THAT(host.misuse(), IsEmpty());
}

TEST_F(AddOnCallGuardTest, listenersThatThrowAreShownAndTheOthersAreTold) {
    session.stateChanges().addCallback([](StateChange_e) { throw std::runtime_error("listener"); });
    session.silentPage().createFrame({});
    session.setPlotType(PlotType_Cartesian2D);
    EXPECT_THAT(errors(), ElementsAre("listener"));
    EXPECT_THAT(told, ElementsAre(StateChange_PlotTypeChanged));
}

TEST_F(AddOnCallGuardTest, idleWorkThatThrowsIsShownAndTheRestIsDone) {
    bool done = false;
    session.idle().add([this] {
        session.locks().start(addOn);
        throw std::runtime_error("idle");
    });
    session.idle().add([&done] { done = true; });
    session.onIdle();
    EXPECT_THAT(errors(), ElementsAre("idle"));
    EXPECT_TRUE(done);
    EXPECT_EQ(session.locks().depth(), 0);
}

} // namespace
} // namespace corvane::host
