// Tests of the rules that tie the host's parts together.
#include "host/core/Host.h"

#include "tests/support/TempFolder.h"
#include "tests/unit/host/core/Fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SessionTest : public testing::Test {
protected:
    SessionTest() {
        host.reader.data = fakes::volumeData();
        session.stateChanges().addListener(&SessionTest::listen, this);
    }

    static void listen(StateChange_e change, void* clientData) {
        static_cast<SessionTest*>(clientData)->told.push_back(change);
    }
    /// Data are loaded, drawn and told of.
    void open() {
        session.openData({"x"});
        settle();
    }
    void settle() {
        session.drawing().drawIfDue();
        told.clear();
    }
    Frame& frame() { return *session.page().active(); }

    fakes::FakeHost host;
    Host& program = host.program;
    Session& session = host.session;
    std::vector<StateChange_e> told;
};

TEST_F(SessionTest, theMostRecentlyCreatedHostIsTheCurrentOne) {
    EXPECT_EQ(Host::current(), &program);
    {
        fakes::FakeHost younger;
        EXPECT_EQ(Host::current(), &younger.program);
    }
    EXPECT_EQ(Host::current(), &program);
}

TEST(HostLife, thereIsNoneAfterTheLastOne) {
    { const fakes::FakeHost host; }
    EXPECT_EQ(Host::current(), nullptr);
}

TEST_F(SessionTest, opensDataIntoANewFrameOfTheWholeWorkArea) {
    session.page().workArea = {800, 600, 100.0};
    session.openData({"a", "b"});
    EXPECT_THAT(host.reader.calls, ElementsAre(ElementsAre("a", "b")));
    ASSERT_EQ(session.page().frames().size(), 1U);
    EXPECT_EQ(frame().placement, (Placement{0, 0, 8, 6}));
    EXPECT_EQ(frame().data(), host.reader.data);
    EXPECT_TRUE(frame().style.slices[0].show);
    EXPECT_THAT(told, ElementsAre(StateChange_FrameCreated, StateChange_DataSetAttached));
    EXPECT_TRUE(session.drawing().isMarked());
    EXPECT_EQ(session.drawing().renders(), 0U);
}

TEST_F(SessionTest, opensDataIntoTheActiveFrame) {
    session.page().createFrame({1, 1, 2, 2});
    session.openData({"a"});
    EXPECT_EQ(session.page().frames().size(), 1U);
    EXPECT_THAT(told, ElementsAre(StateChange_DataSetAttached));
}

TEST_F(SessionTest, aHiddenWindowGivesAFrameWithAnExtent) {
    session.page().workArea = {0, 0, 100.0};
    session.openData({"a"});
    EXPECT_GT(frame().placement.width, 0.0);
    EXPECT_GT(frame().placement.height, 0.0);
}

TEST_F(SessionTest, dataThatCannotBeReadLeaveTheOldOnesAlone) {
    open();
    const auto before = frame().data();
    const FrameStyle style = frame().style;
    host.reader.failure = "Cannot read y.";
    EXPECT_THROW(session.openData({"y"}), HostError);
    EXPECT_EQ(frame().data(), before);
    EXPECT_EQ(frame().style, style);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(session.drawing().isMarked());
}

TEST_F(SessionTest, dataThatCannotBeReadMakeNoFrame) {
    host.reader.failure = "Cannot read y.";
    EXPECT_THROW(session.openData({"y"}), HostError);
    EXPECT_EQ(session.page().active(), nullptr);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(SessionTest, aWriteToTheViewTellsOfTheViewAndMarks) {
    open();
    EXPECT_EQ(session.setStyle({"ThreeDView", "PSIAngle"}, 12.0), StyleSet_Ok);
    EXPECT_EQ(frame().view.psi, 12.0);
    EXPECT_THAT(told, ElementsAre(StateChange_ViewChanged));
    EXPECT_TRUE(session.drawing().isMarked());
    EXPECT_EQ(session.drawing().renders(), 1U) << "the one of opening";
}

TEST_F(SessionTest, aWriteToThePictureTellsOfTheStyleAndMarks) {
    open();
    EXPECT_EQ(session.setStyle({"GlobalThreeD", "LightSource", "Intensity"}, 1.0), StyleSet_Ok);
    EXPECT_THAT(told, ElementsAre(StateChange_StyleChanged));
    EXPECT_TRUE(session.drawing().isMarked());
}

TEST_F(SessionTest, aWriteWithoutEffectOnThePictureTellsAndDoesNotMark) {
    EXPECT_EQ(session.setStyle({"Interface", "UseDisplayLists"}, 0L), StyleSet_Ok);
    EXPECT_EQ(session.setStyle({"exportsetup", "ImageWidth"}, 99L), StyleSet_Ok);
    EXPECT_EQ(session.exportSetup().imageWidth, 99);
    EXPECT_THAT(told, ElementsAre(StateChange_StyleChanged, StateChange_StyleChanged));
    EXPECT_FALSE(session.drawing().isMarked());
}

TEST_F(SessionTest, aWriteThatChangesNothingTellsNobody) {
    open();
    EXPECT_EQ(session.setStyle({"ThreeDView", "PSIAngle"}, frame().view.psi), StyleSet_Unchanged);
    EXPECT_EQ(session.setStyle({"ThreeDView", "PSIAngle"}, 1L), StyleSet_BadValue);
    EXPECT_EQ(session.setStyle({"ThreeDView", "Nothing"}, 1.0), StyleSet_BadPath);
    EXPECT_EQ(session.setStyle({}, 1.0), StyleSet_BadPath);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(session.drawing().isMarked());
}

TEST_F(SessionTest, readsStylesOfFrameAndApplication) {
    open();
    StyleInput value;
    EXPECT_EQ(session.getStyle({"ThreeDView", "PSIAngle"}, value), StyleGet_Ok);
    EXPECT_EQ(value, StyleInput(65.0));
    EXPECT_EQ(session.getStyle({"ExportSetup", "ExportFormat"}, value), StyleGet_Ok);
    EXPECT_EQ(value, StyleInput(14L));
    EXPECT_EQ(session.getStyle({"ThreeDView", "Nothing"}, value), StyleGet_BadPath);
    EXPECT_EQ(value, StyleInput(14L));
}

TEST_F(SessionTest, stylesOfAFrameNeedA3DFrame) {
    StyleInput value;
    EXPECT_EQ(session.setStyle({"ThreeDView", "PSIAngle"}, 1.0), StyleSet_NotAllowed);
    EXPECT_EQ(session.getStyle({"ThreeDView", "PSIAngle"}, value), StyleGet_NotAvailable);
    EXPECT_EQ(session.findStyle({"ThreeDView", "PSIAngle"}), nullptr);
    open();
    EXPECT_NE(session.findStyle({"ThreeDView", "PSIAngle"}), nullptr);
    session.setPlotType(PlotType_Cartesian2D);
    EXPECT_EQ(session.setStyle({"ThreeDView", "PSIAngle"}, 1.0), StyleSet_NotAllowed);
    EXPECT_EQ(session.getStyle({"ThreeDView", "PSIAngle"}, value), StyleGet_NotAvailable);
    EXPECT_EQ(session.setStyle({"Interface", "UseDisplayLists"}, 0L), StyleSet_Ok);
}

TEST_F(SessionTest, stylesReachTheFrameOfAWalk) {
    session.page().createFrame({});
    session.page().createFrame({}).view.psi = 7;
    session.page().activate(1);
    session.page().startWalk();
    StyleInput value;
    EXPECT_EQ(session.getStyle({"ThreeDView", "PSIAngle"}, value), StyleGet_Ok);
    EXPECT_EQ(value, StyleInput(7.0));
}

TEST_F(SessionTest, setsTheSolutionTimeWithoutDrawing) {
    open();
    EXPECT_TRUE(session.setSolutionTime(2.5));
    EXPECT_TRUE(session.setSolutionTime(2.5));
    EXPECT_EQ(frame().solutionTime, 2.5);
    EXPECT_THAT(told, ElementsAre(StateChange_SolutionTimeChanged));
    EXPECT_TRUE(session.drawing().isMarked());
    EXPECT_EQ(session.drawing().renders(), 1U);
}

TEST_F(SessionTest, refusesTimesThatAreNotFiniteAndTimesWithoutData) {
    EXPECT_FALSE(session.setSolutionTime(1.0));
    session.page().createFrame({});
    EXPECT_FALSE(session.setSolutionTime(1.0));
    open();
    EXPECT_FALSE(session.setSolutionTime(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(session.setSolutionTime(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(frame().solutionTime, 0.0);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(SessionTest, rotatesTheView) {
    open();
    View3D expected = frame().view;
    rotate(expected, RotateAxis_Theta, 10.0);
    EXPECT_TRUE(session.rotateView(RotateAxis_Theta, 10.0));
    EXPECT_EQ(frame().view, expected);
    EXPECT_THAT(told, ElementsAre(StateChange_ViewChanged));
    EXPECT_TRUE(session.drawing().isMarked());
}

TEST_F(SessionTest, rotationsThatCannotBeDoneChangeNothing) {
    EXPECT_FALSE(session.rotateView(RotateAxis_Psi, 1.0));
    open();
    EXPECT_FALSE(session.rotateView(RotateAxis_Psi, std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(session.rotateView(static_cast<RotateAxis_e>(7), 1.0));
    EXPECT_TRUE(session.rotateView(RotateAxis_Psi, 0.0));
    session.setPlotType(PlotType_Cartesian2D);
    settle();
    EXPECT_FALSE(session.rotateView(RotateAxis_Psi, 1.0));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(session.drawing().isMarked());
}

TEST_F(SessionTest, fitsTheView) {
    EXPECT_FALSE(session.fitView());
    open();
    const View3D fitted = frame().view;
    EXPECT_TRUE(session.fitView());
    EXPECT_THAT(told, IsEmpty());
    frame().view.width = 99;
    EXPECT_TRUE(session.fitView());
    EXPECT_EQ(frame().view, fitted);
    EXPECT_THAT(told, ElementsAre(StateChange_ViewChanged));
    host.reader.data = std::make_shared<DataSet>();
    open();
    EXPECT_FALSE(session.fitView());
}

TEST_F(SessionTest, setsThePlotType) {
    EXPECT_FALSE(session.setPlotType(PlotType_Cartesian2D));
    open();
    EXPECT_TRUE(session.setPlotType(PlotType_Cartesian2D));
    EXPECT_TRUE(session.setPlotType(PlotType_Cartesian2D));
    EXPECT_THAT(told, ElementsAre(StateChange_PlotTypeChanged));
}

TEST_F(SessionTest, aFailedMovieStopsTheAnimationUntilItIsCancelled) {
    const test::TempFolder folder;
    open();
    session.exportSetup().fileName = folder.file("movie.avi");
    session.exportSetup().imageWidth = 8;
    host.movies.failAdd = 2;
    session.status().start("Exporting", true, true);
    ASSERT_TRUE(session.exporter().start());
    EXPECT_TRUE(session.status().check(1));
    EXPECT_FALSE(session.exporter().nextFrame());
    EXPECT_FALSE(session.status().check(2));
    EXPECT_FALSE(session.status().wasStopped());
    session.exporter().cancel();
    session.status().finish();
    session.status().start("Playing", true, true);
    EXPECT_TRUE(session.status().check(1)) << "the next animation has nothing to do with it";
}

TEST_F(SessionTest, theExportSetupIsClosedWhileAMovieIsRecorded) {
    const test::TempFolder folder;
    open();
    session.exportSetup().fileName = folder.file("movie.avi");
    session.exportSetup().imageWidth = 8;
    ASSERT_TRUE(session.exporter().start());
    EXPECT_EQ(session.setStyle({"ExportSetup", "ImageWidth"}, 16L), StyleSet_NotAllowed);
    session.exporter().cancel();
    EXPECT_EQ(session.setStyle({"ExportSetup", "ImageWidth"}, 16L), StyleSet_Ok);
}

class AddOnCallGuard : public SessionTest {
protected:
    CorAddOnID addOn = session.addOns().add({110, "Careless", "1", "somebody"});
    std::vector<std::string> misuses;
    std::vector<std::string> exceptions;

    AddOnCallGuard() {
        session.trace().connect(
            {.onMisuse = [this](const std::string& what) { misuses.push_back(what); },
             .onException = [this](const std::string& what) { exceptions.push_back(what); }});
    }
};

TEST_F(AddOnCallGuard, letsCallsThrough) {
    bool called = false;
    EXPECT_EQ(session.callAddOn("call", [&called] { called = true; }), "");
    EXPECT_TRUE(called);
    EXPECT_THAT(misuses, IsEmpty());
}

TEST_F(AddOnCallGuard, catchesWhateverIsThrown) {
    EXPECT_EQ(session.callAddOn("call", [] { throw std::out_of_range("row 7"); }), "row 7");
    EXPECT_EQ(session.callAddOn("call", [] { throw 7; }),
              "The add-on failed for an unknown reason.");
    EXPECT_NE(session.callAddOn("call", [] { throw std::runtime_error(""); }), "");
}

TEST_F(AddOnCallGuard, putsLocksAndSuspensionsBackAfterAnException) {
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
}

TEST_F(AddOnCallGuard, asksForThePictureThatTheLeftLocksHeldBack) {
    open();
    session.callAddOn("call", [this] {
        session.locks().start(addOn);
        session.drawing().suspend();
        session.setStyle({"ThreeDView", "PSIAngle"}, 1.0);
        throw std::runtime_error("oops");
    });
    const int requests = host.idleTimer.requests;
    EXPECT_GT(requests, 0);
    session.onIdle();
    EXPECT_EQ(session.drawing().renders(), 2U);
    EXPECT_FALSE(session.drawing().isMarked());
}

TEST_F(AddOnCallGuard, putsBackWhatAnOrderlyCallLeftAndTellsTheTrace) {
    open();
    session.locks().start(nullptr);
    EXPECT_EQ(session.callAddOn("taking", [this] { session.locks().start(addOn); }), "");
    EXPECT_EQ(session.locks().depth(), 1);
    EXPECT_EQ(session.callAddOn("giving", [this] { session.locks().finish(nullptr); }), "");
    EXPECT_EQ(session.locks().depth(), 1);
    EXPECT_EQ(session.callAddOn("suspending", [this] { session.drawing().suspend(); }), "");
    EXPECT_EQ(session.drawing().suspensions(), 0);
    EXPECT_THAT(misuses,
                ElementsAre("taking: locks are not balanced (1 before, 2 after)",
                            "giving: locks are not balanced (1 before, 0 after)",
                            "suspending: suspended drawing is not balanced (0 before, 1 after)"));
}

TEST_F(AddOnCallGuard, drawsWhatAForgottenLockHeldBack) {
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

TEST_F(AddOnCallGuard, tellsTheTraceWhatWasThrown) {
    session.callAddOn("idle work of libBad.so", [] { throw std::out_of_range("row 7"); });
    EXPECT_THAT(exceptions, ElementsAre("idle work of libBad.so: row 7"));
    EXPECT_THAT(misuses, IsEmpty());
}

TEST_F(AddOnCallGuard, listenersThatThrowAreShownAndTheOthersAreTold) {
    session.stateChanges().addCallback([](StateChange_e) { throw std::runtime_error("listener"); });
    session.page().createFrame({});
    session.setPlotType(PlotType_Cartesian2D);
    EXPECT_THAT(host.prompts.errors, ElementsAre("listener"));
    EXPECT_THAT(told, ElementsAre(StateChange_PlotTypeChanged));
}

TEST_F(AddOnCallGuard, idleWorkThatThrowsIsShownAndTheRestIsDone) {
    bool done = false;
    session.idle().add([this] {
        session.locks().start(addOn);
        throw std::runtime_error("idle");
    });
    session.idle().add([&done] { done = true; });
    session.onIdle();
    EXPECT_THAT(host.prompts.errors, ElementsAre("idle"));
    EXPECT_TRUE(done);
    EXPECT_EQ(session.locks().depth(), 0);
}

TEST_F(SessionTest, idleTimeDoesTheWorkAndThenDraws) {
    std::uint64_t rendersAtWork = 99;
    session.idle().add([this, &rendersAtWork] { rendersAtWork = session.drawing().renders(); });
    session.drawing().mark();
    session.onIdle();
    EXPECT_EQ(rendersAtWork, 0U);
    EXPECT_EQ(session.drawing().renders(), 1U);
}

TEST_F(SessionTest, aPictureThatFailsAtIdleTimeIsShownOnce) {
    host.screen.fails = true;
    session.drawing().mark();
    session.onIdle();
    session.onIdle();
    EXPECT_THAT(host.prompts.errors, ElementsAre("The screen is gone."));
}

TEST_F(SessionTest, quittingTellsOnceAndDropsIdleWork) {
    bool ran = false;
    session.idle().add([&ran] { ran = true; });
    session.drawing().suspend();
    session.quit();
    session.quit();
    session.onIdle();
    EXPECT_THAT(told, ElementsAre(StateChange_HostQuit));
    EXPECT_FALSE(ran);
    EXPECT_EQ(session.drawing().suspensions(), 0);
}

} // namespace
} // namespace corvane::host
