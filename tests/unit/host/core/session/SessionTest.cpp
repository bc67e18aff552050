// Tests of the rules by which the state of the host changes.
#include "tests/unit/host/core/session/SessionTest.h"

#include "host/core/base/HostError.h"
#include "tests/support/TempFolder.h"

#include <limits>
#include <memory>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(SessionTest, opensDataIntoANewFrameOfTheWholeWorkArea) {
    session.silentPage().workArea = {800, 600, 100.0};
    session.openData({"a", "b"});
    EXPECT_THAT(host.reader().reads(), ElementsAre(ElementsAre("a", "b")));
    ASSERT_EQ(session.page().frames().size(), 1U);
    EXPECT_EQ(frame().placement, (Placement{0, 0, 8, 6}));
    EXPECT_EQ(frame().data(), data);
    EXPECT_TRUE(frame().style.slices[0].show);
    EXPECT_THAT(told, ElementsAre(StateChange_FrameCreated, StateChange_DataSetAttached));
    EXPECT_TRUE(session.drawing().isMarked());
    EXPECT_EQ(session.drawing().renders(), 0U);
}

TEST_F(SessionTest, opensDataIntoTheActiveFrame) {
    session.silentPage().createFrame({1, 1, 2, 2});
    session.openData({"a"});
    EXPECT_EQ(session.page().frames().size(), 1U);
    EXPECT_THAT(told, ElementsAre(StateChange_DataSetAttached));
}

TEST_F(SessionTest, aHiddenWindowGivesAFrameWithAnExtent) {
    session.silentPage().workArea = {0, 0, 100.0};
    session.openData({"a"});
    EXPECT_GT(frame().placement.width, 0.0);
    EXPECT_GT(frame().placement.height, 0.0);
}

TEST_F(SessionTest, dataThatCannotBeReadLeaveTheOldOnesAlone) {
    open();
    const auto before = frame().data();
    const FrameStyle style = frame().style;
    host.reader().failNext("Cannot read y.");
    EXPECT_THROW(session.openData({"y"}), HostError);
    EXPECT_EQ(frame().data(), before);
    EXPECT_EQ(frame().style, style);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(session.drawing().isMarked());
}

TEST_F(SessionTest, dataThatCannotBeReadMakeNoFrame) {
    host.reader().failNext("Cannot read y.");
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
    EXPECT_EQ(session.setStyle(StylePath{}, 1.0), StyleSet_BadPath);
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
    session.silentPage().createFrame({});
    session.silentPage().createFrame({}).view.psi = 7;
    session.silentPage().activate(1);
    session.silentPage().startWalk();
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
    session.silentPage().createFrame({});
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
    host.reader().provide(std::make_shared<DataSet>());
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

TEST_F(SessionTest, aNewFrameIsOnTopAndActive) {
    session.createFrame({});
    settle();
    const Frame& created = session.createFrame({1, 2, 3, 4});
    EXPECT_EQ(created.placement, (Placement{1, 2, 3, 4}));
    EXPECT_EQ(session.page().active(), &created);
    EXPECT_EQ(session.page().frames().front(), &created);
    EXPECT_THAT(told, ElementsAre(StateChange_FrameCreated, StateChange_FrameActivated));
    EXPECT_TRUE(session.drawing().isMarked());
}

TEST_F(SessionTest, placesAFrame) {
    const long id = session.createFrame({}).id();
    session.createFrame({5, 5, 1, 1});
    settle();
    EXPECT_TRUE(session.placeFrame(id, {1, 2, 3, 4}));
    EXPECT_EQ(session.page().find(id)->placement, (Placement{1, 2, 3, 4}));
    EXPECT_EQ(frame().placement, (Placement{5, 5, 1, 1})) << "the active one stays";
    EXPECT_THAT(told, ElementsAre(StateChange_StyleChanged));
    EXPECT_TRUE(session.drawing().isMarked());
}

TEST_F(SessionTest, aFrameThatIsNotThereCannotBePlaced) {
    session.createFrame({1, 2, 3, 4});
    settle();
    EXPECT_FALSE(session.placeFrame(99, {}));
    EXPECT_EQ(frame().placement, (Placement{1, 2, 3, 4}));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(session.drawing().isMarked());
}

TEST_F(SessionTest, raisesAndLowersFramesWithoutTellingAndWithoutActivating) {
    const long below = session.createFrame({}).id();
    const long above = session.createFrame({}).id();
    settle();
    EXPECT_TRUE(session.raiseFrame(below));
    EXPECT_EQ(session.page().frames().front()->id(), below);
    EXPECT_TRUE(session.drawing().isMarked());
    settle();
    EXPECT_TRUE(session.lowerFrame(below));
    EXPECT_EQ(session.page().frames().front()->id(), above);
    EXPECT_TRUE(session.drawing().isMarked());
    EXPECT_EQ(frame().id(), above);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(SessionTest, aFrameThatIsNotThereIsNeitherRaisedNorLowered) {
    const long below = session.createFrame({}).id();
    session.createFrame({});
    EXPECT_FALSE(session.raiseFrame(99));
    EXPECT_FALSE(session.lowerFrame(99));
    EXPECT_EQ(session.page().frames().back()->id(), below);
}

TEST_F(SessionTest, aFrameThatFilledTheWorkAreaFillsItAfterwards) {
    open();
    const WorkArea smaller{800, 600, 100.0};
    session.resizeWorkArea(smaller);
    EXPECT_EQ(session.page().workArea, smaller);
    EXPECT_EQ(frame().placement, (Placement{0, 0, 8, 6}));
    EXPECT_TRUE(session.drawing().isMarked());
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(SessionTest, framesThatDoNotFillTheWorkAreaKeepTheirPlace) {
    session.createFrame({1, 1, 2, 2});
    session.resizeWorkArea({800, 600, 100.0});
    EXPECT_EQ(frame().placement, (Placement{1, 1, 2, 2}));
}

TEST_F(SessionTest, aFailedMovieStopsTheAnimationUntilItIsCancelled) {
    const test::TempFolder folder;
    open();
    session.exportSetup().fileName = folder.file("movie.avi");
    session.exportSetup().imageWidth = 8;
    host.movies().failAt(2);
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
    session.status().finish();
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

TEST_F(SessionTest, idleTimeDoesTheWorkAndThenDraws) {
    std::uint64_t rendersAtWork = 99;
    session.idle().add([this, &rendersAtWork] { rendersAtWork = session.drawing().renders(); });
    session.drawing().mark();
    session.onIdle();
    EXPECT_EQ(rendersAtWork, 0U);
    EXPECT_EQ(session.drawing().renders(), 1U);
}

TEST_F(SessionTest, aPictureThatFailsAtIdleTimeIsShownOnce) {
    host.renderer().failAt(1);
    session.drawing().mark();
    session.onIdle();
    session.onIdle();
    EXPECT_THAT(errors(), ElementsAre("The picture could not be drawn."));
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
