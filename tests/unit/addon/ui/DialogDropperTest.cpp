// Closing the dialog when the active frame is no 3D plot any more.
#include "addon/ui/DialogDropper.h"

#include "tests/unit/addon/ShellTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

class DialogDropperTest : public ShellTest {
protected:
    DialogDropperTest() { DialogMain::launch(); }

    std::vector<std::string> dialogsUp() { return host.gui().dialogsUp(); }
};

const auto isUp = ElementsAre("Key Frame Animation");

TEST_F(DialogDropperTest, closesTheDialogAtIdleTime) {
    host.runIdle();
    host.setPlotType(PlotType_Cartesian2D);
    EXPECT_THAT(dialogsUp(), isUp);
    host.runIdle();
    EXPECT_THAT(dialogsUp(), IsEmpty());
}

TEST_F(DialogDropperTest, closesTheDialogWithTheLastFrame) {
    host.session().silentPage().deleteFrame(host.frame().id());
    host.session().pageChanged(StateChange_FrameDeleted);
    host.runIdle();
    EXPECT_THAT(dialogsUp(), IsEmpty());
}

TEST_F(DialogDropperTest, lookedAwayIsNotGone) {
    host.setPlotType(PlotType_Cartesian2D);
    host.setPlotType(PlotType_Cartesian3D);
    host.runIdle();
    EXPECT_THAT(dialogsUp(), isUp);
    host.setPlotType(PlotType_Cartesian2D);
    host.runIdle();
    EXPECT_THAT(dialogsUp(), IsEmpty());
}

TEST_F(DialogDropperTest, leavesTheDialogAloneAfterOtherChanges) {
    host.session().stateChanges().notify(StateChange_ViewChanged);
    host.session().stateChanges().notify(StateChange_StyleChanged);
    host.setData(nullptr);
    host.runIdle();
    EXPECT_THAT(dialogsUp(), isUp);
}

TEST_F(DialogDropperTest, asksForIdleTimeOnceForManyChanges) {
    host.runIdle();
    host.clearCalls();
    host.setPlotType(PlotType_Cartesian2D);
    host.session().stateChanges().notify(StateChange_StyleChanged);
    EXPECT_EQ(host.count("CorUtilOnIdleQueueAddCallback"), 1u);
}

TEST_F(DialogDropperTest, stopsListeningUntilTheNextLaunch) {
    host.setPlotType(PlotType_Cartesian2D);
    host.runIdle();
    host.clearCalls();
    host.session().stateChanges().notify(StateChange_StyleChanged);
    EXPECT_THAT(host.calls(), IsEmpty());

    host.setPlotType(PlotType_Cartesian3D);
    DialogMain::launch();
    host.setPlotType(PlotType_Cartesian2D);
    host.runIdle();
    EXPECT_THAT(dialogsUp(), IsEmpty());
}

TEST_F(DialogDropperTest, detachesTheDialogFromItsList) {
    host.setPlotType(PlotType_Cartesian2D);
    host.runIdle();
    host.clearCalls();
    DialogMain::instance().model().insertItem(0, KeyFrame_s{View(), "View 1", 30, 0.0});
    EXPECT_THAT(host.calls(), IsEmpty());
    DialogMain::instance().listView().selectionModel().setSelectedItem(0);
    EXPECT_EQ(host.count("CorUtilOnIdleQueueAddCallback"), 0u);
}

TEST_F(DialogDropperTest, holdsNoLockAfterwards) {
    host.setPlotType(PlotType_Cartesian2D);
    EXPECT_EQ(lockDepth(), 0);
    host.runIdle();
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogDropperTest, endsQuietlyWithTheHost) {
    host.session().stateChanges().notify(StateChange_HostQuit);
    host.runIdle();
    host.clearCalls();
    host.session().stateChanges().notify(StateChange_PlotTypeChanged);
    EXPECT_THAT(host.calls(), IsEmpty());
}

} // namespace
