// The main dialog: capturing and changing key frames.
#include "tests/unit/addon/UiTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

class DialogMainEditTest : public DialogMainWindowTest {
protected:
    // Turns the camera of the host, so that views can be told from each other.
    void turn(double psi) { host.frame().view.psi = psi; }
};

TEST_F(DialogMainEditTest, namesTheFirstKeyFrameAndGivesIt30Frames) {
    host.frame().solutionTime = 1.5;
    turn(25.0);
    click("Append");
    ASSERT_EQ(model().size(), 1u);
    EXPECT_EQ(model().name(0), "View 1");
    EXPECT_EQ(model().frameCount(0), 30u);
    EXPECT_EQ(model().solutionTime(0), 1.5);
    EXPECT_DOUBLE_EQ(model().data(0).view.psi(), 25.0);
    EXPECT_THAT(rows(), ElementsAre("View 1"));
}

TEST_F(DialogMainEditTest, appendsAtTheEndWithTheLastFrameCount) {
    capture(2);
    setFrameCounts({10, 12});
    select({1});
    capture(1);
    EXPECT_THAT(rows(), ElementsAre("View 1", "View 2", "View 3"));
    EXPECT_THAT(frameCounts(), ElementsAre(10, 12, 12));
}

TEST_F(DialogMainEditTest, namesAfterTheNumberOfKeyFramesSoThatNamesRepeat) {
    capture(2);
    select({1});
    click("Delete");
    capture(1);
    EXPECT_THAT(rows(), ElementsAre("View 2", "View 2"));
}

TEST_F(DialogMainEditTest, insertsInThePlaceOfTheFirstSelected) {
    capture(3);
    setFrameCounts({10, 11, 12});
    select({2, 3});
    click("Insert");
    EXPECT_THAT(rows(), ElementsAre("View 1", "View 4", "View 2", "View 3"));
    EXPECT_THAT(frameCounts(), ElementsAre(10, 12, 11, 12));
}

TEST_F(DialogMainEditTest, insertsAtTheEndWhenNothingIsSelected) {
    capture(2);
    DialogMain::insertKeyFrame_BTN_CB();
    EXPECT_THAT(rows(), ElementsAre("View 1", "View 2", "View 3"));
}

TEST_F(DialogMainEditTest, updatesTheSelectedView) {
    capture(2);
    model().setName(1, "Stern");
    model().setFrameCount(1, 12);
    select({2});
    turn(77.0);
    host.frame().solutionTime = 2.0;
    click("Update");
    EXPECT_DOUBLE_EQ(model().data(1).view.psi(), 77.0);
    EXPECT_EQ(model().solutionTime(1), 2.0);
    EXPECT_EQ(model().name(1), "Stern");
    EXPECT_EQ(model().frameCount(1), 12u);
    EXPECT_NE(model().data(0).view.psi(), 77.0);
}

TEST_F(DialogMainEditTest, updatesAndAppliesNothingForManyOrNone) {
    capture(2);
    turn(77.0);
    for (const std::vector<long>& selection : {std::vector<long>{}, {1, 2}}) {
        select(selection);
        DialogMain::update_BTN_CB();
        DialogMain::apply_BTN_CB();
    }
    EXPECT_NE(model().data(0).view.psi(), 77.0);
    EXPECT_NE(model().data(1).view.psi(), 77.0);
    EXPECT_EQ(host.frame().view.psi, 77.0);
}

TEST_F(DialogMainEditTest, appliesTheSelectedKeyFrame) {
    turn(25.0);
    host.frame().solutionTime = 1.0;
    capture(1);
    turn(77.0);
    host.frame().solutionTime = 2.0;
    select({1});
    host.clearCalls();
    click("Apply");
    EXPECT_DOUBLE_EQ(host.frame().view.psi, 25.0);
    EXPECT_EQ(host.frame().solutionTime, 1.0);
    EXPECT_EQ(host.count("CorUtilSolutionTimeSetCurrent"), 1u);
}

TEST_F(DialogMainEditTest, saysWhenThereIsNoViewToCapture) {
    capture(1);
    select({1});
    host.setPlotType(PlotType_Cartesian2D);
    for (const char* const button : {"Append", "Insert", "Update"}) {
        window().button(button).click();
    }
    EXPECT_THAT(errors(), testing::AllOf(testing::SizeIs(3),
                                         testing::Each("The current frame must be in 3D Cartesian "
                                                       "mode.")));
    EXPECT_THAT(rows(), ElementsAre("View 1"));
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogMainEditTest, deletesARunInOneStep) {
    capture(5);
    select({2, 3, 4});
    host.clearCalls();
    click("Delete");
    EXPECT_THAT(rows(), ElementsAre("View 1", "View 5"));
    const std::string list = std::to_string(window().list().handle());
    EXPECT_THAT(host.callsOf("CorGUIListDeleteItemAtPos"),
                ElementsAre("CorGUIListDeleteItemAtPos(" + list + ", 4)",
                            "CorGUIListDeleteItemAtPos(" + list + ", 3)",
                            "CorGUIListDeleteItemAtPos(" + list + ", 2)"));
    EXPECT_EQ(host.count("CorGUIListSetSelectedItems"), 1u);
}

TEST_F(DialogMainEditTest, deletesScatteredKeyFramesFromTheEndOn) {
    capture(5);
    select({1, 3, 4});
    host.clearCalls();
    click("Delete");
    EXPECT_THAT(rows(), ElementsAre("View 2", "View 5"));
    const std::string list = std::to_string(window().list().handle());
    EXPECT_THAT(host.callsOf("CorGUIListDeleteItemAtPos"),
                ElementsAre("CorGUIListDeleteItemAtPos(" + list + ", 4)",
                            "CorGUIListDeleteItemAtPos(" + list + ", 3)",
                            "CorGUIListDeleteItemAtPos(" + list + ", 1)"));
    EXPECT_EQ(host.count("CorGUIListSetSelectedItems"), 3u);
}

TEST_F(DialogMainEditTest, selectsWhatMovesIntoThePlacesOfTheDeleted) {
    capture(5);
    select({2, 3});
    click("Delete");
    EXPECT_THAT(rows(), ElementsAre("View 1", "View 4", "View 5"));
    EXPECT_THAT(window().list().selection(), ElementsAre(2, 3));
    EXPECT_EQ(fieldText("View Name:"), "View 4");
}

TEST_F(DialogMainEditTest, deletesNothingWithoutASelection) {
    capture(2);
    host.clearCalls();
    DialogMain::delete_BTN_CB();
    EXPECT_EQ(model().size(), 2u);
    EXPECT_EQ(host.count("CorUtilOnIdleQueueAddCallback"), 0u);
}

TEST_F(DialogMainEditTest, clears) {
    capture(3);
    select({2});
    click("Clear");
    EXPECT_THAT(rows(), ElementsAre("No Key Frames established."));
    EXPECT_FALSE(window().button("Clear").isSensitive());
    EXPECT_FALSE(window().button("Delete").isSensitive());
    DialogMain::clear_BTN_CB();
    EXPECT_THAT(rows(), ElementsAre("No Key Frames established."));
    capture(1);
    EXPECT_THAT(rows(), ElementsAre("View 1"));
}

TEST_F(DialogMainEditTest, renamesTheSelectedKeyFrame) {
    capture(2);
    select({2});
    enter("View Name:", "Bow & stern");
    EXPECT_EQ(model().name(1), "Bow & stern");
    EXPECT_THAT(rows(), ElementsAre("View 1", "Bow & stern"));
    EXPECT_THAT(window().list().selection(), ElementsAre(2));
}

TEST_F(DialogMainEditTest, refusesAnEmptyName) {
    capture(1);
    select({1});
    enter("View Name:", "");
    EXPECT_THAT(errors(), ElementsAre("The view name must be at least one character."));
    EXPECT_EQ(fieldText("View Name:"), "View 1");
    EXPECT_EQ(model().name(0), "View 1");
    EXPECT_EQ(DialogMain::viewName_TF_CB(""), 1);
}

TEST_F(DialogMainEditTest, ignoresANameWithoutASingleSelection) {
    capture(2);
    select({1, 2});
    EXPECT_EQ(DialogMain::viewName_TF_CB("Bow"), 1);
    EXPECT_EQ(DialogMain::viewName_TF_CB(""), 1);
    EXPECT_THAT(rows(), ElementsAre("View 1", "View 2"));
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(DialogMainEditTest, setsTheFrameCountOfAllSelected) {
    capture(4);
    select({1, 2, 3});
    enter("Frame Count:", "25");
    EXPECT_THAT(frameCounts(), ElementsAre(25, 25, 25, 30));
    EXPECT_EQ(DialogMain::frameCount_TF_CB("26"), 1);
    EXPECT_THAT(frameCounts(), ElementsAre(26, 26, 26, 30));
}

TEST_F(DialogMainEditTest, refusesAFrameCountOfZero) {
    capture(1);
    select({1});
    enter("Frame Count:", "0");
    EXPECT_THAT(errors(), ElementsAre("Invalid input. Input must be a number between 1 and "
                                      "2147483647."));
    EXPECT_EQ(fieldText("Frame Count:"), "30");
    EXPECT_THAT(frameCounts(), ElementsAre(30));
    EXPECT_EQ(DialogMain::frameCount_TF_CB("many"), 0);
}

TEST_F(DialogMainEditTest, commitsWhatIsBeingTypedBeforeAButton) {
    capture(1);
    select({1});
    window().field("View Name:").type("Bow");
    click("Append");
    EXPECT_THAT(rows(), ElementsAre("Bow", "View 2"));
}

} // namespace
