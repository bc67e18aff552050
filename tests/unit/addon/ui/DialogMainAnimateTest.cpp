// The main dialog: playing the flight.
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/UiTest.h"
#include "tests/unit/addon/file/KeyFrameTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string time = "Animate Time Concurrently";
const std::string streamtraces = "Animate Streamtraces Concurrently";

class DialogMainAnimateTest : public DialogMainWindowTest {
protected:
    // Key frames with these frame counts, each looking another way.
    void build(const std::vector<unsigned long>& counts) {
        for (const unsigned long count : counts) {
            host.frame().view.psi += 10.0;
            click("Append");
            model().setFrameCount(model().size() - 1, count);
        }
        host.clearCalls();
        host.renderer().clear();
    }

    MemoryMenuToggle option(const std::string& label) {
        return window().menu("Options").toggle(label);
    }

    // Pictures on the screen since the key frames were made.
    std::size_t pictures() { return host.renderer().renders(); }
};

TEST_F(DialogMainAnimateTest, playsAllOnScreen) {
    build({2, 3, 5});
    host.program().recorder().start();
    click("Animate All");
    EXPECT_EQ(pictures(), 6u);
    EXPECT_THAT(host.program().recorder().stop(),
                ElementsAre("$!EXTCOMMAND \"Key Frame Animation\" "
                            "\"Animate AnimationDestination=OnScreen\""));
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogMainAnimateTest, showsWhyAFlightFailed) {
    build({2, 2});
    host.stopAtCheck(2);
    click("Animate All");
    EXPECT_THAT(errors(), ElementsAre("Animation canceled."));
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogMainAnimateTest, playsTheSelectedRangeAndRecordsNothing) {
    build({2, 3, 4, 5});
    select({2, 3});
    host.renderer().clear();
    host.program().recorder().start();
    click("Animate Selected");
    EXPECT_EQ(pictures(), 4u);
    EXPECT_THAT(host.recordedCommands(), IsEmpty());
}

TEST_F(DialogMainAnimateTest, playsAllWhenAllAreSelected) {
    build({2, 3, 4});
    select({1, 2, 3});
    host.renderer().clear();
    click("Animate Selected");
    EXPECT_EQ(pictures(), 6u);
}

TEST_F(DialogMainAnimateTest, refusesASelectionWithGaps) {
    build({2, 2, 2});
    select({1, 3});
    window().optionMenu().choose("To File");
    host.renderer().clear();
    click("Animate Selected");
    EXPECT_THAT(errors(), ElementsAre("Selected items must be a continuous range."));
    EXPECT_THAT(notices(), IsEmpty());
    EXPECT_EQ(pictures(), 0u);
}

TEST_F(DialogMainAnimateTest, playsTheSelectedRangeOnScreenInsteadOfToAFile) {
    build({2, 3});
    select({1, 2});
    window().optionMenu().choose("To File");
    host.runIdle();
    host.renderer().clear();
    window().button("Animate Selected").click();
    EXPECT_THAT(notices(), ElementsAre("\"Animate Selected\" does not support output to file.\n"
                                       "The destination has been reset to \"On Screen\"."));
    EXPECT_EQ(pictures(), 3u);
    EXPECT_EQ(dialog().settings().destination, Destination_OnScreen);
    host.runIdle();
    EXPECT_EQ(window().optionMenu().chosenText(), "On Screen");
    EXPECT_THAT(host.movies().movies(), IsEmpty());
}

TEST_F(DialogMainAnimateTest, playsTheSelectedRangeWhereTheMenuSays) {
    build({2, 3});
    select({1, 2});
    Settings_s settings = defaultSettings();
    settings.destination = Destination_ToFile;
    dialog().applySettings(settings);
    host.renderer().clear();
    window().button("Animate Selected").click();
    EXPECT_THAT(notices(), IsEmpty());
    EXPECT_THAT(errors(), IsEmpty());
    EXPECT_EQ(pictures(), 3u);
}

TEST_F(DialogMainAnimateTest, playsNothingWithoutASelection) {
    build({2, 2});
    host.clearCalls();
    DialogMain::animateSelected_BTN_CB();
    EXPECT_THAT(errors(), IsEmpty());
    EXPECT_EQ(pictures(), 0u);
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(DialogMainAnimateTest, showsWhyASelectedRangeFailed) {
    build({2, 2});
    select({1, 2});
    host.setPlotType(PlotType_Cartesian2D);
    window().button("Animate Selected").click();
    EXPECT_THAT(errors(), ElementsAre("The current frame must be in 3D Cartesian mode."));
}

TEST_F(DialogMainAnimateTest, turnsTimeOffOverDataThatDoesNotChange) {
    build({2, 2});
    host.setData(makeStaticData());
    option(time).choose();
    EXPECT_TRUE(option(time).isOn());
    EXPECT_THAT(notices(), IsEmpty());
    host.renderer().clear();
    click("Animate All");
    EXPECT_THAT(notices(), ElementsAre("The current data set is not transient.\n"
                                       "Concurrent time animation will be disabled."));
    EXPECT_FALSE(option(time).isOn());
    EXPECT_FALSE(dialog().settings().timeOptions.animateTime);
    EXPECT_EQ(pictures(), 3u);
    EXPECT_THAT(host.callsOf("CorUtilSolutionTimeSetCurrent"), IsEmpty());
}

TEST_F(DialogMainAnimateTest, turnsStreamtracesOffWithoutMarkersAndDashes) {
    build({2, 2});
    option(streamtraces).choose();
    click("Animate All");
    EXPECT_THAT(notices(), ElementsAre("Neither streamtrace markers nor dashes are enabled.\n"
                                       "Concurrent streamtrace animation will be disabled."));
    EXPECT_FALSE(option(streamtraces).isOn());
    EXPECT_FALSE(dialog().settings().animateStreamtraces);
}

TEST_F(DialogMainAnimateTest, checksTimeFirst) {
    build({2, 2});
    host.setData(makeStaticData());
    option(time).choose();
    option(streamtraces).choose();
    DialogMain::instance().checkAnimationSettings();
    ASSERT_EQ(notices().size(), 2u);
    EXPECT_THAT(notices().front(), testing::HasSubstr("transient"));
}

TEST_F(DialogMainAnimateTest, keepsOptionsThatCanBePlayed) {
    build({2, 2});
    option(time).choose();
    host.frame().style.streamTiming.showMarkers = true;
    option(streamtraces).choose();
    click("Animate All");
    EXPECT_THAT(notices(), IsEmpty());
    EXPECT_TRUE(option(time).isOn());
    EXPECT_TRUE(option(streamtraces).isOn());
}

TEST_F(DialogMainAnimateTest, checksNothingForASelectedRange) {
    build({2, 2});
    host.setData(makeStaticData());
    option(streamtraces).choose();
    select({1, 2});
    click("Animate Selected");
    EXPECT_THAT(notices(), IsEmpty());
    EXPECT_TRUE(option(streamtraces).isOn());
}

TEST_F(DialogMainAnimateTest, switchesEachOption) {
    for (const std::string& label :
         {time, streamtraces, std::string("Fade In"), std::string("Fade Out")}) {
        option(label).choose();
        EXPECT_TRUE(option(label).isOn()) << label;
    }
    const Settings_s& settings = dialog().settings();
    EXPECT_TRUE(settings.timeOptions.animateTime);
    EXPECT_TRUE(settings.animateStreamtraces);
    EXPECT_TRUE(settings.fadeIn);
    EXPECT_TRUE(settings.fadeOut);
    option("Fade In").choose();
    EXPECT_FALSE(settings.fadeIn);
    EXPECT_FALSE(option("Fade In").isOn());
    EXPECT_TRUE(option("Fade Out").isOn());
}

TEST_F(DialogMainAnimateTest, asksForTheExportFirst) {
    build({2, 2});
    window().optionMenu().choose("To File");
    click("Animate All");
    EXPECT_THAT(host.gui().dialogsUp(), ElementsAre("Key Frame Animation", "Export Options"));
    EXPECT_EQ(pictures(), 0u);
    host.gui().dialog("Export Options").cancel();
    EXPECT_THAT(host.movies().movies(), IsEmpty());
}

TEST_F(DialogMainAnimateTest, writesTheMovieWhenTheExportIsConfirmed) {
    const TempFolder folder;
    build({2, 3});
    window().optionMenu().choose("To File");
    click("Animate All");
    host.prompts().answerFile(folder.file("flight.avi"));
    host.program().recorder().start();
    host.gui().dialog("Export Options").ok();
    ASSERT_EQ(host.movies().movies().size(), 1u);
    EXPECT_EQ(host.movies().movies().front().pictures, 3u);
    EXPECT_TRUE(host.movies().movies().front().finished);
    EXPECT_TRUE(folder.has("flight.avi"));
    EXPECT_EQ(host.program().recorder().stop().back(),
              "$!EXTCOMMAND \"Key Frame Animation\" \"Animate AnimationDestination=ToFile\"");
    EXPECT_EQ(dialog().settings().destination, Destination_ToFile);
}

TEST_F(DialogMainAnimateTest, opensTheTimeOptionsOnItsSettings) {
    window().menu("Options").item("Time Animation Options...").choose();
    EXPECT_THAT(host.gui().dialogsUp(),
                ElementsAre("Key Frame Animation", "Time Animation Options"));
    host.gui().dialog("Time Animation Options").radioBox().choose("Loop");
    host.gui().dialog("Time Animation Options").ok();
    EXPECT_TRUE(option(time).isOn());
    EXPECT_EQ(dialog().settings().timeOptions.operation, TimeAnimationOperation_Loop);
}

TEST_F(DialogMainAnimateTest, leavesTheOptionsWhenTheTimeOptionsAreCancelled) {
    window().menu("Options").item("Time Animation Options...").choose();
    host.gui().dialog("Time Animation Options").cancel();
    EXPECT_FALSE(option(time).isOn());
    EXPECT_EQ(dialog().settings(), defaultSettings());
}

} // namespace
