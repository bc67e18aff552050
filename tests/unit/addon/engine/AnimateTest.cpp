// The main loop of a flight.
#include "addon/engine/Animate.h"

#include "addon/base/HostLock.h"
#include "addon/base/KeyFrameError.h"
#include "hostapi/CorHost.h"
#include "tests/cases/FlightCases.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/EngineTest.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace corvane::test {
namespace {

using namespace corutiltools;

const std::string outOfMemory = "Not enough memory to produce the animation.\n"
                                "Try reducing the number of total frames in the animation.";

class AnimateTest : public EngineTest {
protected:
    AnimateTest() { host.session().exportSetup().fileName = folder.file("flight.avi"); }

    // What the user is told; empty when the flight came to its end.
    static std::string errorOf(const KeyFrames& keyFrames, const Settings_s& settings,
                               MacroOption_e option = MacroOption_DoNotRecord) {
        try {
            Animate(keyFrames, 0, keyFrames.size(), settings, option);
        } catch (const KeyFrameError& error) {
            return error.what();
        }
        return "";
    }

    static Settings_s toFile() {
        Settings_s settings = plainSettings();
        settings.destination = Destination_ToFile;
        return settings;
    }

    const TempFolder folder;
    const KeyFrames keyFrames = flightCase("FourKeysMixed").keyFrames;
    const KeyFrames twoFrames = flightCase("TwoKeysCountOne").keyFrames;
};

TEST_F(AnimateTest, callsTheHostInOrder) {
    Animate(twoFrames, 0, 2, plainSettings(), MacroOption_Record);
    const std::vector<std::string> frameCalls{
        "CorUtilLockStart",  "CorUtilLockStart",          "CorUtilDrawGraphics(FALSE)",
        "CorUtilStyleSet",   "CorUtilStyleSet",           "CorUtilStyleSet",
        "CorUtilStyleSet",   "CorUtilStyleSet",           "CorUtilStyleSet",
        "CorUtilStyleGet",   "CorUtilStyleSet",           "CorUtilStyleSet",
        "CorUtilStyleSet",   "CorUtilDrawGraphics(TRUE)", "CorUtilLockFinish",
        "CorUtilLockFinish", "CorUtilRedraw(TRUE)",       "CorUtilStatusCheckPercentDone"};
    std::vector<std::string> expected{
        "CorUtilLockStart",
        "CorUtilFrameGetPlotType",
        "CorUtilStatusStartPercentDone",
        "CorUtilStatusFinishPercentDone",
        "CorUtilStatusStartPercentDone",
        "CorUtilStyleGet",
        "CorUtilStyleSet",
    };
    expected.insert(expected.end(), frameCalls.begin(), frameCalls.end());
    expected.insert(expected.end(), frameCalls.begin(), frameCalls.end());
    expected.insert(expected.end(), {"CorUtilMacroIsRecordingActive", "CorUtilStyleSet",
                                     "CorUtilStatusFinishPercentDone", "CorUtilLockFinish"});
    EXPECT_THAT(callNames(), ElementsAreArray(expected));
}

TEST_F(AnimateTest, saysWhatItDoes) {
    Animate(twoFrames, 0, 2, plainSettings(), MacroOption_DoNotRecord);
    EXPECT_THAT(callsTo("CorUtilStatusStartPercentDone"),
                ElementsAre("CorUtilStatusStartPercentDone(\"Creating interpolated views.... Press "
                            "[Esc] or click [Stop] to cancel.\", TRUE, TRUE)",
                            "CorUtilStatusStartPercentDone(\"Animating.... Press [Esc] or click "
                            "[Stop] to cancel.\", TRUE, TRUE)"));
}

TEST_F(AnimateTest, drawsEachFrameOnce) {
    EXPECT_EQ(errorOf(keyFramesWithCounts({10, 20, 5}), plainSettings()), "");
    EXPECT_EQ(callsTo("CorUtilRedraw(TRUE)").size(), 31u);
    // The last release of the lock has nothing new to show but the display lists' setting.
    EXPECT_EQ(host.renderer().renders(), 31u);
}

// 31 frames of 32 steps: deliberately just below 100.
TEST_F(AnimateTest, endsJustBelowAHundredPercent) {
    EXPECT_EQ(errorOf(keyFramesWithCounts({10, 20, 5}), plainSettings()), "");
    EXPECT_EQ(callsTo("CorUtilStatusCheckPercentDone").back(), "CorUtilStatusCheckPercentDone(96)");
}

TEST_F(AnimateTest, playsARangeWithTheFrameNumbersOfTheWholeFlight) {
    Animate(keyFrames, 1, 2, plainSettings(), MacroOption_DoNotRecord);
    EXPECT_EQ(callsTo("CorUtilRedraw(TRUE)").size(), 22u);
    EXPECT_EQ(view().position.x, keyFrames.back().view.x());
}

TEST_F(AnimateTest, leavesTheLastView) {
    EXPECT_EQ(errorOf(keyFrames, plainSettings()), "");
    const View& last = keyFrames.back().view;
    EXPECT_EQ(view().psi, last.psi());
    EXPECT_EQ(view().theta, last.theta());
    EXPECT_EQ(view().alpha, last.alpha());
    EXPECT_EQ(view().width, last.width());
}

TEST_F(AnimateTest, switchesDisplayListsOffMeanwhile) {
    EXPECT_TRUE(usesDisplayLists());
    EXPECT_EQ(errorOf(twoFrames, plainSettings()), "");
    EXPECT_TRUE(usesDisplayLists());
    EXPECT_THAT(
        callsTo("CorUtilStyleSet(\"Interface\",\"UseDisplayLists\""),
        ElementsAre(R"(CorUtilStyleSet("Interface","UseDisplayLists", IValue=0, DValue=0))",
                    R"(CorUtilStyleSet("Interface","UseDisplayLists", IValue=1, DValue=1))"));
}

TEST_F(AnimateTest, outsideA3DFrameDoesNothingAtAll) {
    host.setPlotType(PlotType_Cartesian2D);
    host.clearCalls();
    EXPECT_EQ(errorOf(keyFrames, plainSettings()),
              "The current frame must be in 3D Cartesian mode.");
    EXPECT_THAT(callNames(),
                ElementsAre("CorUtilLockStart", "CorUtilFrameGetPlotType", "CorUtilLockFinish"));
}

TEST_F(AnimateTest, refusesFewerThanTwoKeyFrames) {
    for (const auto& tooFew : {KeyFrames{}, flightCase("OneKey").keyFrames}) {
        host.clearCalls();
        EXPECT_EQ(errorOf(tooFew, plainSettings()),
                  "At least two keyFrame views must be established to perform an animation.");
        EXPECT_THAT(callNames(), ElementsAre("CorUtilLockStart", "CorUtilFrameGetPlotType",
                                             "CorUtilLockFinish"));
    }
}

TEST_F(AnimateTest, completesTheFrameInWhichTheUserStops) {
    host.stopAtCheck(1);
    EXPECT_EQ(errorOf(twoFrames, plainSettings()), "Animation canceled.");
    // One for the frame, one for the end.
    EXPECT_EQ(callsTo("CorUtilRedraw(TRUE)").size(), 2u);
    EXPECT_TRUE(usesDisplayLists());
    EXPECT_TRUE(hostIsAtRest());
}

TEST_F(AnimateTest, takesAStopAtTheLastFrameForAStop) {
    host.stopAtCheck(2);
    EXPECT_EQ(errorOf(twoFrames, plainSettings()), "Animation canceled.");
}

TEST_F(AnimateTest, cleansUpInOrderWhenTheUserStops) {
    host.stopAtCheck(1);
    EXPECT_EQ(errorOf(twoFrames, toFile()), "Animation canceled.");
    std::vector<std::string> names = callNames();
    names.erase(names.begin(),
                std::find(names.begin(), names.end(), "CorUtilStatusCheckPercentDone"));
    EXPECT_THAT(names, ElementsAre("CorUtilStatusCheckPercentDone", "CorUtilExportIsRecording",
                                   "CorUtilExportCancel", "CorUtilRedraw(TRUE)", "CorUtilStyleSet",
                                   "CorUtilStatusFinishPercentDone", "CorUtilExportIsRecording",
                                   "CorUtilLockFinish"));
}

TEST_F(AnimateTest, isStoppedWhileItComputesTheViews) {
    host.stopAtCheck(3);
    EXPECT_EQ(errorOf(keyFrames, plainSettings()), "Animation canceled.");
    EXPECT_THAT(callsTo("CorUtilRedraw"), IsEmpty());
    EXPECT_TRUE(hostIsAtRest());
}

TEST_F(AnimateTest, writesAMovieWithAPictureForEachFrame) {
    EXPECT_EQ(errorOf(keyFramesForFrames(10), toFile()), "");
    EXPECT_EQ(callsTo("CorUtilExportStart").size(), 1u);
    EXPECT_EQ(callsTo("CorUtilExportNextFrame").size(), 9u);
    EXPECT_EQ(callsTo("CorUtilExportFinish").size(), 1u);
    ASSERT_EQ(host.movies().movies().size(), 1u);
    EXPECT_EQ(host.movies().movies()[0].pictures, 10u);
    EXPECT_TRUE(host.movies().movies()[0].finished);
    EXPECT_TRUE(folder.has("flight.avi"));
}

TEST_F(AnimateTest, finishesTheMovieAfterThePercentDisplayEnds) {
    EXPECT_EQ(errorOf(twoFrames, toFile()), "");
    const std::vector<std::string> names = callNames();
    EXPECT_THAT(std::vector<std::string>(names.end() - 4, names.end()),
                ElementsAre("CorUtilStatusFinishPercentDone", "CorUtilExportIsRecording",
                            "CorUtilExportFinish", "CorUtilLockFinish"));
}

TEST_F(AnimateTest, leavesNoMovieWhenTheUserStops) {
    host.stopAtCheck(1);
    EXPECT_EQ(errorOf(twoFrames, toFile()), "Animation canceled.");
    EXPECT_FALSE(folder.has("flight.avi"));
}

TEST_F(AnimateTest, stopsWhenTheMovieCannotBeWritten) {
    host.movies().failAt(3);
    EXPECT_EQ(errorOf(keyFramesForFrames(10), toFile()), "Animation canceled.");
    EXPECT_EQ(callsTo("CorUtilExportNextFrame").size(), 2u);
    EXPECT_FALSE(folder.has("flight.avi"));
}

TEST_F(AnimateTest, tellsThatTheExportCannotStart) {
    host.session().exportSetup().fileName.clear();
    EXPECT_EQ(errorOf(twoFrames, toFile()), "Unable to start animation export.");
    host.session().exportSetup().format = 1;
    EXPECT_EQ(errorOf(twoFrames, toFile()),
              "The export file format must be set to an animation format \n"
              "before animating to file.");
    EXPECT_TRUE(hostIsAtRest());
    EXPECT_TRUE(usesDisplayLists());
}

TEST_F(AnimateTest, tellsThatAnotherExportRunsAndLeavesItAlone) {
    ASSERT_TRUE(CorUtilExportStart());
    EXPECT_EQ(errorOf(twoFrames, toFile()),
              "Unable to start animation export. Another export is already in progress.");
    EXPECT_TRUE(CorUtilExportIsRecording());
    EXPECT_TRUE(CorUtilExportCancel());
}

TEST_F(AnimateTest, recordsNothingWithoutAMacro) {
    EXPECT_EQ(errorOf(twoFrames, plainSettings(), MacroOption_Record), "");
    EXPECT_THAT(callsTo("CorUtilMacroRecord"), IsEmpty());
}

TEST_F(AnimateTest, recordsOneCommandAfterTheLastFrame) {
    host.program().recorder().start();
    EXPECT_EQ(errorOf(twoFrames, plainSettings(), MacroOption_Record), "");
    EXPECT_EQ(errorOf(twoFrames, toFile(), MacroOption_Record), "");
    EXPECT_THAT(
        host.program().recorder().stop(),
        ElementsAre(R"($!EXTCOMMAND "Key Frame Animation" "Animate AnimationDestination=OnScreen")",
                    R"($!EXTCOMMAND "Key Frame Animation" "Animate AnimationDestination=ToFile")"));
}

TEST_F(AnimateTest, recordsUnderTheLocksAndBeforeItCleansUp) {
    host.program().recorder().start();
    EXPECT_EQ(errorOf(twoFrames, plainSettings(), MacroOption_Record), "");
    std::vector<std::string> names = callNames();
    names.erase(names.begin(),
                std::find(names.begin(), names.end(), "CorUtilMacroIsRecordingActive"));
    EXPECT_THAT(names,
                ElementsAre("CorUtilMacroIsRecordingActive", "CorUtilLockStart", "CorUtilLockStart",
                            "CorUtilMacroIsRecordingActive", "CorUtilMacroRecordExtCommand",
                            "CorUtilLockFinish", "CorUtilLockFinish", "CorUtilStyleSet",
                            "CorUtilStatusFinishPercentDone", "CorUtilLockFinish"));
    host.program().recorder().stop();
}

TEST_F(AnimateTest, doesNotRecordWhatItWasToldNotToRecord) {
    host.program().recorder().start();
    EXPECT_EQ(errorOf(twoFrames, plainSettings(), MacroOption_DoNotRecord), "");
    EXPECT_THAT(host.recordedCommands(), IsEmpty());
    EXPECT_THAT(callsTo("CorUtilMacro"), IsEmpty());
}

TEST_F(AnimateTest, recordsNeitherStoppedNorFailedFlights) {
    host.program().recorder().start();
    host.stopAtCheck(2);
    EXPECT_EQ(errorOf(twoFrames, plainSettings(), MacroOption_Record), "Animation canceled.");
    EXPECT_NE(errorOf({}, plainSettings(), MacroOption_Record), "");
    host.session().exportSetup().format = 1;
    EXPECT_NE(errorOf(twoFrames, toFile(), MacroOption_Record), "");
    EXPECT_THAT(host.recordedCommands(), IsEmpty());
}

// Every logic error counts as want of memory, this one too: deliberately kept.
TEST_F(AnimateTest, tellsThatMemoryIsShortForADestinationWithoutKeyword) {
    host.program().recorder().start();
    Settings_s settings = plainSettings();
    settings.destination = static_cast<Destination_e>(7);
    EXPECT_EQ(errorOf(twoFrames, settings, MacroOption_Record), outOfMemory);
    EXPECT_THAT(host.recordedCommands(), IsEmpty());
    EXPECT_TRUE(usesDisplayLists());
}

TEST_F(AnimateTest, tellsThatMemoryIsShortForAListNobodyCanHold) {
    const unsigned long largest = std::numeric_limits<unsigned long>::max();
    for (unsigned long count : {largest, largest / 2 + 1, largest / 8}) {
        EXPECT_EQ(errorOf(keyFramesWithCounts({count, count, 1}), plainSettings()), outOfMemory)
            << count;
        EXPECT_TRUE(hostIsAtRest());
    }
}

TEST_F(AnimateTest, tellsThatMemoryIsShortForTimesThatAreMissing) {
    Settings_s settings = plainSettings();
    settings.timeOptions = {true, static_cast<TimeAnimationOperation_e>(9), 1};
    EXPECT_EQ(errorOf(keyFrames, settings), outOfMemory);
    EXPECT_TRUE(hostIsAtRest());
    EXPECT_TRUE(usesDisplayLists());
}

TEST_F(AnimateTest, letsOtherErrorsPass) {
    host.throwAt("CorUtilRedraw", 2);
    EXPECT_THROW(errorOf(twoFrames, plainSettings()), std::runtime_error);
    EXPECT_TRUE(hostIsAtRest());
    EXPECT_TRUE(usesDisplayLists());
}

TEST_F(AnimateTest, runsInsideTheLocksOfItsCaller) {
    const HostLock lock;
    EXPECT_EQ(errorOf(twoFrames, plainSettings()), "");
    EXPECT_EQ(host.session().locks().depth(), 1);
}

TEST_F(AnimateTest, showsEachFrameAsItsEffectsWant) {
    setSolutionTimes({0.0, 1.0});
    frame().style.streamTiming.timeAnchor = 2.0;
    frame().style.streamTiming.deltaTime = 0.5;
    const Settings_s settings{
        {true, TimeAnimationOperation_Forward, 1}, Destination_OnScreen, true, true, true};
    EXPECT_EQ(errorOf(keyFramesForFrames(101), settings), "");
    const auto& states = host.renderer().states();
    ASSERT_GE(states.size(), 101u);
    for (std::size_t i = 0; i <= 100; ++i) {
        const double frameNumber = static_cast<double>(i);
        EXPECT_NEAR(states[i].solutionTime, frameNumber / 100.0, 1e-12) << i;
        EXPECT_NEAR(states[i].streamTiming.timeAnchor, 2.0 + (frameNumber + 1.0) * 0.1, 1e-9) << i;
        EXPECT_FALSE(states[i].showAxis) << i;
    }
    EXPECT_EQ(states[0].light.intensity, 0.0);
    EXPECT_EQ(states[30].light.intensity, 75.0);
    EXPECT_EQ(states[70].light.intensity, 75.0);
    EXPECT_NEAR(states[71].light.intensity, 75.0 * 29.0 / 30.0, 1e-9);
    EXPECT_EQ(states[100].light.intensity, 0.0);
}

// The screen must not stay black after a fade-out.
TEST_F(AnimateTest, isSeenInFullLightWhenItIsOver) {
    Settings_s settings = plainSettings();
    settings.fadeOut = true;
    EXPECT_EQ(errorOf(keyFramesForFrames(20), settings), "");
    host.runIdle();
    EXPECT_EQ(host.renderer().states().back().light, host::LightStyle{});
    EXPECT_TRUE(host.renderer().states().back().showAxis);
}

} // namespace
} // namespace corvane::test
