// Tests of add-on commands by name, of recording, and of the call trace's lines.
#include "host/core/Macros.h"

#include "host/core/CallTrace.h"
#include "host/core/MacroText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(AddOnCommandsTest, FindsCommandsByTheirExactName) {
    AddOnCommands commands;
    EXPECT_TRUE(commands.add("Flight", [](const std::string& text) { return text + "!"; }));
    ASSERT_NE(commands.find("Flight"), nullptr);
    EXPECT_EQ((*commands.find("Flight"))("go"), "go!");
    EXPECT_EQ(commands.find("flight"), nullptr);
    EXPECT_EQ(commands.find(""), nullptr);
}

TEST(AddOnCommandsTest, ANameIsTakenOnce) {
    AddOnCommands commands;
    EXPECT_FALSE(commands.add("", [](const std::string&) { return std::nullopt; }));
    EXPECT_TRUE(commands.add("A", [](const std::string&) { return "first"; }));
    EXPECT_FALSE(commands.add("A", [](const std::string&) { return "second"; }));
    EXPECT_EQ((*commands.find("A"))(""), "first");
}

TEST(MacroRecorderTest, KeepsLinesInOrderWhileItIsOn) {
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

TEST(MacroRecorderTest, KeepsNothingWhileItIsOff) {
    MacroRecorder recorder;
    EXPECT_FALSE(recorder.recordRaw("$!REDRAW"));
    EXPECT_FALSE(recorder.recordAddOnCommand("A", "B"));
    EXPECT_THAT(recorder.lines(), IsEmpty());
    EXPECT_THAT(recorder.stop(), IsEmpty());
}

TEST(MacroRecorderTest, StartsWithAnEmptyPage) {
    MacroRecorder recorder;
    recorder.start();
    recorder.recordRaw("old");
    recorder.start();
    recorder.recordRaw("new");
    EXPECT_THAT(recorder.lines(), ElementsAre("new"));
}

TEST(TraceRecordText, ShowsCallResultAndDepth) {
    EXPECT_EQ(toString(TraceRecord{"CorUtilExportStart()", "TRUE", 1}),
              "CorUtilExportStart() = TRUE [1]");
    EXPECT_EQ(toString(TraceRecord{"CorUtilDrawGraphics(FALSE)", "", 0}),
              "CorUtilDrawGraphics(FALSE) [0]");
}

} // namespace
} // namespace corvane::host
