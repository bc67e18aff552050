// Tests of recording macros.
#include "host/core/macro/MacroRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MacroRecorderTest, keepsLinesInOrderWhileItIsOn) {
    MacroRecorder recorder;
    recorder.start();
    EXPECT_TRUE(recorder.isRecording());
    EXPECT_TRUE(recorder.recordRaw("$!EXPORTSETUP AnimationSpeed = 30"));
    EXPECT_TRUE(recorder.recordAddOnCommand("Key \"Frames\"", "LOAD \"a b\\c\""));
    EXPECT_THAT(recorder.stop(), ElementsAre("$!EXPORTSETUP AnimationSpeed = 30",
                                             R"($!EXTCOMMAND "Key \"Frames\"" "LOAD \"a b\\c\"")"));
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_THAT(recorder.lines(), IsEmpty());
}

TEST(MacroRecorderTest, keepsNothingWhileItIsOff) {
    MacroRecorder recorder;
    EXPECT_FALSE(recorder.recordRaw("$!REDRAW"));
    EXPECT_FALSE(recorder.recordAddOnCommand("A", "B"));
    EXPECT_THAT(recorder.lines(), IsEmpty());
    EXPECT_THAT(recorder.stop(), IsEmpty());
}

TEST(MacroRecorderTest, startsWithAnEmptyPage) {
    MacroRecorder recorder;
    recorder.start();
    recorder.recordRaw("old");
    recorder.start();
    recorder.recordRaw("new");
    EXPECT_THAT(recorder.lines(), ElementsAre("new"));
}

TEST(MacroRecorderTest, keepsTheLastOfSeveralStatesOfOneThing) {
    MacroRecorder recorder;
    recorder.start();
    recorder.recordState("$!VIEW SET Psi = 1");
    recorder.recordState("$!VIEW SET Psi = 2");
    recorder.recordState("$!SOLUTIONTIME = 3");
    recorder.recordState("$!VIEW SET Psi = 4");
    EXPECT_THAT(recorder.lines(),
                ElementsAre("$!VIEW SET Psi = 2", "$!SOLUTIONTIME = 3", "$!VIEW SET Psi = 4"));
}

TEST(MacroRecorderTest, aStateTakesNoCommandsPlace) {
    MacroRecorder recorder;
    recorder.recordState("$!VIEW SET Psi = 0"); // nothing is being recorded
    recorder.start();
    recorder.recordRaw("$!VIEW FIT");
    recorder.recordState("$!VIEW SET Psi = 1");
    recorder.recordRaw("$!VIEW SET Psi = 2");
    recorder.recordState("$!VIEW SET Psi = 3");
    EXPECT_THAT(recorder.lines(), ElementsAre("$!VIEW FIT", "$!VIEW SET Psi = 1",
                                              "$!VIEW SET Psi = 2", "$!VIEW SET Psi = 3"));
}

} // namespace
} // namespace corvane::host
