// Tests of the rules that tie the host's parts together.
#include "host/core/Application.h"

#include "tests/support/TempFolder.h"
#include "tests/unit/host_core/Fakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ApplicationTest : public testing::Test {
protected:
    ApplicationTest() {
        host.reader.data = fakes::volumeData();
        app.stateChanges().addListener(&ApplicationTest::listen, this);
    }

    static void listen(StateChange_e change, void* clientData) {
        static_cast<ApplicationTest*>(clientData)->told.push_back(change);
    }
    /// Data are loaded, drawn and told of.
    void open() {
        app.openData({"x"});
        settle();
    }
    void settle() {
        app.drawing().drawIfDue();
        told.clear();
    }
    Frame& frame() { return *app.page().active(); }

    fakes::FakeHost host;
    Application& app = host.app;
    std::vector<StateChange_e> told;
};

TEST_F(ApplicationTest, TheYoungestOneAliveIsTheCurrentOne) {
    EXPECT_EQ(Application::current(), &app);
    {
        fakes::FakeHost younger;
        EXPECT_EQ(Application::current(), &younger.app);
    }
    EXPECT_EQ(Application::current(), &app);
}

TEST(ApplicationLife, ThereIsNoneAfterTheLastOne) {
    { const fakes::FakeHost host; }
    EXPECT_EQ(Application::current(), nullptr);
}

TEST_F(ApplicationTest, OpensDataIntoANewFrameOfTheWholeWorkArea) {
    app.page().workArea = {800, 600, 100.0};
    app.openData({"a", "b"});
    EXPECT_THAT(host.reader.calls, ElementsAre(ElementsAre("a", "b")));
    ASSERT_EQ(app.page().frames().size(), 1U);
    EXPECT_EQ(frame().placement, (Placement{0, 0, 8, 6}));
    EXPECT_EQ(frame().data(), host.reader.data);
    EXPECT_TRUE(frame().style.slices[0].show);
    EXPECT_THAT(told, ElementsAre(StateChange_FrameCreated, StateChange_DataSetAttached));
    EXPECT_TRUE(app.drawing().isMarked());
    EXPECT_EQ(app.drawing().renders(), 0U);
}

TEST_F(ApplicationTest, OpensDataIntoTheActiveFrame) {
    app.page().createFrame({1, 1, 2, 2});
    app.openData({"a"});
    EXPECT_EQ(app.page().frames().size(), 1U);
    EXPECT_THAT(told, ElementsAre(StateChange_DataSetAttached));
}

TEST_F(ApplicationTest, AHiddenWindowGivesAFrameWithAnExtent) {
    app.page().workArea = {0, 0, 100.0};
    app.openData({"a"});
    EXPECT_GT(frame().placement.width, 0.0);
    EXPECT_GT(frame().placement.height, 0.0);
}

TEST_F(ApplicationTest, DataThatCannotBeReadLeaveTheOldOnesAlone) {
    open();
    const auto before = frame().data();
    const FrameStyle style = frame().style;
    host.reader.failure = "Cannot read y.";
    EXPECT_THROW(app.openData({"y"}), HostError);
    EXPECT_EQ(frame().data(), before);
    EXPECT_EQ(frame().style, style);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(app.drawing().isMarked());
}

TEST_F(ApplicationTest, DataThatCannotBeReadMakeNoFrame) {
    host.reader.failure = "Cannot read y.";
    EXPECT_THROW(app.openData({"y"}), HostError);
    EXPECT_EQ(app.page().active(), nullptr);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(ApplicationTest, AWriteToTheViewTellsOfTheViewAndMarks) {
    open();
    EXPECT_EQ(app.setStyle({"ThreeDView", "PSIAngle"}, 12.0), StyleSet_Ok);
    EXPECT_EQ(frame().view.psi, 12.0);
    EXPECT_THAT(told, ElementsAre(StateChange_ViewChanged));
    EXPECT_TRUE(app.drawing().isMarked());
    EXPECT_EQ(app.drawing().renders(), 1U) << "the one of opening";
}

TEST_F(ApplicationTest, AWriteToThePictureTellsOfTheStyleAndMarks) {
    open();
    EXPECT_EQ(app.setStyle({"GlobalThreeD", "LightSource", "Intensity"}, 1.0), StyleSet_Ok);
    EXPECT_THAT(told, ElementsAre(StateChange_StyleChanged));
    EXPECT_TRUE(app.drawing().isMarked());
}

TEST_F(ApplicationTest, AWriteWithoutEffectOnThePictureTellsAndDoesNotMark) {
    EXPECT_EQ(app.setStyle({"Interface", "UseDisplayLists"}, 0L), StyleSet_Ok);
    EXPECT_EQ(app.setStyle({"exportsetup", "ImageWidth"}, 99L), StyleSet_Ok);
    EXPECT_EQ(app.exportSetup().imageWidth, 99);
    EXPECT_THAT(told, ElementsAre(StateChange_StyleChanged, StateChange_StyleChanged));
    EXPECT_FALSE(app.drawing().isMarked());
}

TEST_F(ApplicationTest, AWriteThatChangesNothingTellsNobody) {
    open();
    EXPECT_EQ(app.setStyle({"ThreeDView", "PSIAngle"}, frame().view.psi), StyleSet_Unchanged);
    EXPECT_EQ(app.setStyle({"ThreeDView", "PSIAngle"}, 1L), StyleSet_BadValue);
    EXPECT_EQ(app.setStyle({"ThreeDView", "Nothing"}, 1.0), StyleSet_BadPath);
    EXPECT_EQ(app.setStyle({}, 1.0), StyleSet_BadPath);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(app.drawing().isMarked());
}

TEST_F(ApplicationTest, ReadsStylesOfFrameAndApplication) {
    open();
    StyleInput value;
    EXPECT_EQ(app.getStyle({"ThreeDView", "PSIAngle"}, value), StyleGet_Ok);
    EXPECT_EQ(value, StyleInput(65.0));
    EXPECT_EQ(app.getStyle({"ExportSetup", "ExportFormat"}, value), StyleGet_Ok);
    EXPECT_EQ(value, StyleInput(14L));
    EXPECT_EQ(app.getStyle({"ThreeDView", "Nothing"}, value), StyleGet_BadPath);
    EXPECT_EQ(value, StyleInput(14L));
}

TEST_F(ApplicationTest, StylesOfAFrameNeedA3DFrame) {
    StyleInput value;
    EXPECT_EQ(app.setStyle({"ThreeDView", "PSIAngle"}, 1.0), StyleSet_NotAllowed);
    EXPECT_EQ(app.getStyle({"ThreeDView", "PSIAngle"}, value), StyleGet_NotAvailable);
    EXPECT_EQ(app.findStyle({"ThreeDView", "PSIAngle"}), nullptr);
    open();
    EXPECT_NE(app.findStyle({"ThreeDView", "PSIAngle"}), nullptr);
    app.setPlotType(PlotType_Cartesian2D);
    EXPECT_EQ(app.setStyle({"ThreeDView", "PSIAngle"}, 1.0), StyleSet_NotAllowed);
    EXPECT_EQ(app.getStyle({"ThreeDView", "PSIAngle"}, value), StyleGet_NotAvailable);
    EXPECT_EQ(app.setStyle({"Interface", "UseDisplayLists"}, 0L), StyleSet_Ok);
}

TEST_F(ApplicationTest, StylesReachTheFrameOfAWalk) {
    app.page().createFrame({});
    app.page().createFrame({}).view.psi = 7;
    app.page().activate(1);
    app.page().startWalk();
    StyleInput value;
    EXPECT_EQ(app.getStyle({"ThreeDView", "PSIAngle"}, value), StyleGet_Ok);
    EXPECT_EQ(value, StyleInput(7.0));
}

TEST_F(ApplicationTest, SetsTheSolutionTimeWithoutDrawing) {
    open();
    EXPECT_TRUE(app.setSolutionTime(2.5));
    EXPECT_TRUE(app.setSolutionTime(2.5));
    EXPECT_EQ(frame().solutionTime, 2.5);
    EXPECT_THAT(told, ElementsAre(StateChange_SolutionTimeChanged));
    EXPECT_TRUE(app.drawing().isMarked());
    EXPECT_EQ(app.drawing().renders(), 1U);
}

TEST_F(ApplicationTest, RefusesTimesThatAreNotFiniteAndTimesWithoutData) {
    EXPECT_FALSE(app.setSolutionTime(1.0));
    app.page().createFrame({});
    EXPECT_FALSE(app.setSolutionTime(1.0));
    open();
    EXPECT_FALSE(app.setSolutionTime(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(app.setSolutionTime(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(frame().solutionTime, 0.0);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(ApplicationTest, RotatesTheView) {
    open();
    View3D expected = frame().view;
    rotate(expected, RotateAxis_Theta, 10.0);
    EXPECT_TRUE(app.rotateView(RotateAxis_Theta, 10.0));
    EXPECT_EQ(frame().view, expected);
    EXPECT_THAT(told, ElementsAre(StateChange_ViewChanged));
    EXPECT_TRUE(app.drawing().isMarked());
}

TEST_F(ApplicationTest, RotationsThatCannotBeDoneChangeNothing) {
    EXPECT_FALSE(app.rotateView(RotateAxis_Psi, 1.0));
    open();
    EXPECT_FALSE(app.rotateView(RotateAxis_Psi, std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(app.rotateView(static_cast<RotateAxis_e>(7), 1.0));
    EXPECT_TRUE(app.rotateView(RotateAxis_Psi, 0.0));
    app.setPlotType(PlotType_Cartesian2D);
    settle();
    EXPECT_FALSE(app.rotateView(RotateAxis_Psi, 1.0));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(app.drawing().isMarked());
}

TEST_F(ApplicationTest, FitsTheView) {
    EXPECT_FALSE(app.fitView());
    open();
    const View3D fitted = frame().view;
    EXPECT_TRUE(app.fitView());
    EXPECT_THAT(told, IsEmpty());
    frame().view.width = 99;
    EXPECT_TRUE(app.fitView());
    EXPECT_EQ(frame().view, fitted);
    EXPECT_THAT(told, ElementsAre(StateChange_ViewChanged));
    host.reader.data = std::make_shared<DataSet>();
    open();
    EXPECT_FALSE(app.fitView());
}

TEST_F(ApplicationTest, SetsThePlotType) {
    EXPECT_FALSE(app.setPlotType(PlotType_Cartesian2D));
    open();
    EXPECT_TRUE(app.setPlotType(PlotType_Cartesian2D));
    EXPECT_TRUE(app.setPlotType(PlotType_Cartesian2D));
    EXPECT_THAT(told, ElementsAre(StateChange_PlotTypeChanged));
}

TEST_F(ApplicationTest, AFailedMovieStopsTheAnimationUntilItIsCancelled) {
    const test::TempFolder folder;
    open();
    app.exportSetup().fileName = folder.file("movie.avi");
    app.exportSetup().imageWidth = 8;
    host.movies.failAdd = 2;
    app.status().start("Exporting", true, true);
    ASSERT_TRUE(app.exporter().start());
    EXPECT_TRUE(app.status().check(1));
    EXPECT_FALSE(app.exporter().nextFrame());
    EXPECT_FALSE(app.status().check(2));
    EXPECT_FALSE(app.status().wasStopped());
    app.exporter().cancel();
    app.status().finish();
    app.status().start("Playing", true, true);
    EXPECT_TRUE(app.status().check(1)) << "the next animation has nothing to do with it";
}

TEST_F(ApplicationTest, TheExportSetupIsClosedWhileAMovieIsRecorded) {
    const test::TempFolder folder;
    open();
    app.exportSetup().fileName = folder.file("movie.avi");
    app.exportSetup().imageWidth = 8;
    ASSERT_TRUE(app.exporter().start());
    EXPECT_EQ(app.setStyle({"ExportSetup", "ImageWidth"}, 16L), StyleSet_NotAllowed);
    app.exporter().cancel();
    EXPECT_EQ(app.setStyle({"ExportSetup", "ImageWidth"}, 16L), StyleSet_Ok);
}

class AddOnWall : public ApplicationTest {
protected:
    CorAddOnID addOn = app.addOns().add({110, "Careless", "1", "somebody"});
    std::vector<std::string> misuses;

    AddOnWall() {
        app.trace().onMisuse = [this](const std::string& what) { misuses.push_back(what); };
    }
};

TEST_F(AddOnWall, LetsCallsThrough) {
    bool called = false;
    EXPECT_EQ(app.callAddOn("call", [&called] { called = true; }), "");
    EXPECT_TRUE(called);
    EXPECT_THAT(misuses, IsEmpty());
}

TEST_F(AddOnWall, CatchesWhateverIsThrown) {
    EXPECT_EQ(app.callAddOn("call", [] { throw std::out_of_range("row 7"); }), "row 7");
    EXPECT_EQ(app.callAddOn("call", [] { throw 7; }), "The add-on failed for an unknown reason.");
    EXPECT_NE(app.callAddOn("call", [] { throw std::runtime_error(""); }), "");
}

TEST_F(AddOnWall, PutsLocksAndSuspensionsBackAfterAnException) {
    app.locks().start(addOn);
    app.drawing().suspend();
    app.callAddOn("call", [this] {
        app.locks().start(addOn);
        app.locks().start(nullptr);
        app.drawing().suspend();
        throw std::runtime_error("oops");
    });
    EXPECT_EQ(app.locks().depth(), 1);
    EXPECT_EQ(app.locks().depthOf(addOn), 1);
    EXPECT_EQ(app.drawing().suspensions(), 1);
}

TEST_F(AddOnWall, AsksForThePictureThatTheLeftLocksHeldBack) {
    open();
    app.callAddOn("call", [this] {
        app.locks().start(addOn);
        app.drawing().suspend();
        app.setStyle({"ThreeDView", "PSIAngle"}, 1.0);
        throw std::runtime_error("oops");
    });
    const int requests = host.idleTimer.requests;
    EXPECT_GT(requests, 0);
    app.onIdle();
    EXPECT_EQ(app.drawing().renders(), 2U);
    EXPECT_FALSE(app.drawing().isMarked());
}

TEST_F(AddOnWall, PutsBackWhatAnOrderlyCallLeftAndTellsTheTrace) {
    open();
    app.locks().start(nullptr);
    EXPECT_EQ(app.callAddOn("taking", [this] { app.locks().start(addOn); }), "");
    EXPECT_EQ(app.locks().depth(), 1);
    EXPECT_EQ(app.callAddOn("giving", [this] { app.locks().finish(nullptr); }), "");
    EXPECT_EQ(app.locks().depth(), 1);
    EXPECT_EQ(app.callAddOn("suspending", [this] { app.drawing().suspend(); }), "");
    EXPECT_EQ(app.drawing().suspensions(), 0);
    EXPECT_THAT(misuses,
                ElementsAre("taking: locks are not balanced (1 before, 2 after)",
                            "giving: locks are not balanced (1 before, 0 after)",
                            "suspending: suspended drawing is not balanced (0 before, 1 after)"));
}

TEST_F(AddOnWall, DrawsWhatAForgottenLockHeldBack) {
    open();
    app.onIdle();
    const auto renders = app.drawing().renders();
    app.callAddOn("call", [this] {
        app.locks().start(addOn);
        app.setStyle({"ThreeDView", "PSIAngle"}, 1.0);
    });
    app.onIdle();
    EXPECT_EQ(app.drawing().renders(), renders + 1);
}

TEST_F(AddOnWall, TellsTheTraceWhatWasThrown) {
    std::vector<std::string> exceptions;
    app.trace().onException = [&](const std::string& what) { exceptions.push_back(what); };
    app.callAddOn("idle work of libBad.so", [] { throw std::out_of_range("row 7"); });
    EXPECT_THAT(exceptions, ElementsAre("idle work of libBad.so: row 7"));
    EXPECT_THAT(misuses, IsEmpty());
}

TEST_F(AddOnWall, ListenersThatThrowAreShownAndTheOthersAreTold) {
    app.stateChanges().addCallback([](StateChange_e) { throw std::runtime_error("listener"); });
    app.page().createFrame({});
    app.setPlotType(PlotType_Cartesian2D);
    EXPECT_THAT(host.dialogs.errors, ElementsAre("listener"));
    EXPECT_THAT(told, ElementsAre(StateChange_PlotTypeChanged));
}

TEST_F(AddOnWall, IdleWorkThatThrowsIsShownAndTheRestIsDone) {
    bool done = false;
    app.idle().add([this] {
        app.locks().start(addOn);
        throw std::runtime_error("idle");
    });
    app.idle().add([&done] { done = true; });
    app.onIdle();
    EXPECT_THAT(host.dialogs.errors, ElementsAre("idle"));
    EXPECT_TRUE(done);
    EXPECT_EQ(app.locks().depth(), 0);
}

TEST_F(ApplicationTest, IdleTimeDoesTheWorkAndThenDraws) {
    std::uint64_t rendersAtWork = 99;
    app.idle().add([this, &rendersAtWork] { rendersAtWork = app.drawing().renders(); });
    app.drawing().mark();
    app.onIdle();
    EXPECT_EQ(rendersAtWork, 0U);
    EXPECT_EQ(app.drawing().renders(), 1U);
}

TEST_F(ApplicationTest, APictureThatFailsAtIdleTimeIsShownOnce) {
    host.screen.fails = true;
    app.drawing().mark();
    app.onIdle();
    app.onIdle();
    EXPECT_THAT(host.dialogs.errors, ElementsAre("The screen is gone."));
}

TEST_F(ApplicationTest, QuittingTellsOnceAndDropsIdleWork) {
    bool ran = false;
    app.idle().add([&ran] { ran = true; });
    app.drawing().suspend();
    app.quit();
    app.quit();
    app.onIdle();
    EXPECT_THAT(told, ElementsAre(StateChange_HostQuit));
    EXPECT_FALSE(ran);
    EXPECT_EQ(app.drawing().suspensions(), 0);
}

} // namespace
} // namespace corvane::host
