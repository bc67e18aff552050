// The commands of Key Frame Animation in macros, as a user writes them: through the macro language,
// the host and the loaded add-on to the picture, and back into a record.
#include "tests/app/BatchHost.h"
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace corvane;
using namespace corvane::test;
using testing::AnyOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

const std::string addOn = "Key Frame Animation";
const std::string missingDestination =
    "Invalid macro command: missing value for parameter \"AnimationDestination\"";
const std::string invalidDestination =
    "Invalid macro command: invalid value for parameter \"AnimationDestination\"";
const std::string missingFileName =
    "Invalid macro command: missing value for parameter \"FileName\"";
const std::string badFormat = "Invalid macro command string format.";
const std::string noFlight =
    "At least two keyFrame views must be established to perform an animation.";

class MacroCommands : public testing::Test {
protected:
    MacroCommands() {
        host.program.session().trace().connect(
            {.onCall = [this](const host::TraceRecord& record) { calls.push_back(record.call); }});
    }

    static std::string lineFor(const std::string& command) {
        return "$!EXTCOMMAND " + host::quoted(addOn) + " " + host::quoted(command);
    }

    /// What the user is told about the command, behind the line of the macro; empty when it works.
    std::string told(const std::string& command) {
        try {
            host.play(lineFor(command));
            return {};
        } catch (const host::MacroError& error) {
            const std::string start = "test:1: " + lineFor(command) + "\n";
            EXPECT_THAT(error.what(), StartsWith(start));
            return std::string(error.what()).substr(start.size());
        }
    }

    void expectRefused(const std::string& command, const std::string& message) {
        EXPECT_EQ(told(command), addOn + " error:\n" + message) << command;
    }

    std::string openCommand(const std::string& name, const std::string& content) const {
        return "OpenSettingsFile FileName=\"" + folder.write(name, content) + "\"";
    }
    std::string openFlight(const std::string& name = "flight.keyframe") const {
        return openCommand(name, StandingFlight{.frames = 3}.keyFrameFile());
    }

    /// Pictures of the movie that the add-on makes of its key frames.
    unsigned long framesOfFlight() {
        host.program.session().exportSetup().fileName = folder.file("flight.avi");
        host.program.session().exportSetup().imageWidth = host.width;
        EXPECT_EQ(told("Animate AnimationDestination=ToFile"), "");
        return host.program.session().exporter().frames();
    }

    std::vector<std::string> recordOf(const std::vector<std::string>& lines) {
        host.program.recorder().start();
        for (const std::string& line : lines) {
            host.play(line);
        }
        return host.program.recorder().stop();
    }

    const TempFolder folder;
    std::vector<std::string> calls;
    BatchHost host{64, 36};
};

TEST_F(MacroCommands, tellWhatIsWrongAndDoNothing) {
    ASSERT_EQ(told(openFlight()), "");
    const host::View3D view = host.program.session().page().active()->view;
    host.program.recorder().start();
    calls.clear();

    expectRefused("", "Invalid macro command string.");
    expectRefused(" \t ", "Invalid macro command string.");
    expectRefused("Fly", "Unknown macro command: Fly");
    expectRefused("Animate\tAnimationDestination=ToFile",
                  "Unknown macro command: Animate\tAnimationDestination=ToFile");
    expectRefused("=", "Unknown macro command: =");
    expectRefused("Animate AnimationDestination", badFormat);
    expectRefused("Animate AnimationDestination= ToFile", badFormat);
    expectRefused("Animate AnimationDestination FileName=a",
                  "Invalid macro parameter string: AnimationDestination");
    expectRefused("Animate Foo=1", "Unknown macro parameter: Foo");
    expectRefused("Animate =ToFile", "Unknown macro parameter: ");
    expectRefused("OpenSettingsFile FileName=\"flight.keyframe",
                  "Invalid macro command string format. Unmatched quotation mark.");
    expectRefused("Animate", missingDestination);
    expectRefused("Animate FileName=a", missingDestination);
    expectRefused("OpenSettingsFile", missingFileName);
    expectRefused("OpenSettingsFile AnimationDestination=ToFile", missingFileName);
    for (const char* value :
         {"AVI", "Screen", "MPEG-4", "ToFile2", "", "\"\"", "\"To File\"", "1"}) {
        expectRefused(std::string("Animate AnimationDestination=") + value, invalidDestination);
    }
    expectRefused("Animate AnimationDestination=AVI AnimationDestination=ToFile",
                  invalidDestination);

    // The add-on handed over its messages and asked for nothing else.
    EXPECT_THAT(calls,
                Each(AnyOf(StartsWith("CorUtilLockStart("), StartsWith("CorUtilLockFinish("))));
    EXPECT_THAT(host.program.recorder().stop(), IsEmpty());
    EXPECT_EQ(host.program.session().drawing().renders(), 0U);
    EXPECT_EQ(host.program.session().page().active()->view, view);
    EXPECT_EQ(host.log.str(), "");
    EXPECT_EQ(framesOfFlight(), 3U);
}

TEST_F(MacroCommands, areTheSameInAnyLetterCaseAndSpacing) {
    const std::string fileName = folder.write("flight.keyframe", StandingFlight().keyFrameFile());
    const std::string open = lineFor("OpenSettingsFile FileName=" + fileName);
    for (const std::string command : {"opensettingsfile filename=", "OPENSETTINGSFILE FILENAME=",
                                      "  OpenSettingsFile   fileName="}) {
        EXPECT_THAT(recordOf({lineFor(command + fileName)}), ElementsAre(open));
    }
    EXPECT_THAT(recordOf({lineFor("OpenSettingsFile FileName=\"" + fileName + "\"")}),
                ElementsAre(open));
    EXPECT_THAT(recordOf({lineFor("OpenSettingsFile FileName=" + fileName + " \t ")}),
                ElementsAre(open));
    EXPECT_THAT(recordOf({lineFor("OpenSettingsFile AnimationDestination=AVI FileName=" + fileName +
                                  " FileName=other")}),
                ElementsAre(open));
    EXPECT_THAT(
        recordOf({"$!extcommand \"" + addOn + "\" \"OpenSettingsFile FileName=" + fileName + "\""}),
        ElementsAre(open));
    const std::string animate = lineFor("Animate AnimationDestination=OnScreen");
    for (const char* command :
         {"animate animationdestination=onscreen", "ANIMATE ANIMATIONDESTINATION=ONSCREEN",
          "Animate  AnimationDestination=\"OnScreen\"  "}) {
        EXPECT_THAT(recordOf({lineFor(command)}), ElementsAre(animate));
    }
}

TEST_F(MacroCommands, keepNamesThroughRecordingAndReplay) {
    int frames = 3;
    for (const char* name :
         {"a b.keyframe", " blanks  around .keyframe ", "Flug über Köln.keyframe", "飛行.keyframe",
          "a=b.keyframe", "${a} $${b}.keyframe", "a\\n\\b.keyframe", "a\tb\nc.keyframe",
          "\xff\xfe.keyframe", "no\"blank.keyframe", "#$!.keyframe"}) {
        SCOPED_TRACE(name);
        const std::string fileName =
            folder.write(name, StandingFlight{.frames = ++frames}.keyFrameFile());
        const std::string command =
            "OpenSettingsFile FileName=\"" + host::MacroVariables::escaped(fileName) + "\"";
        const std::vector<std::string> record = recordOf({lineFor(command)});
        ASSERT_EQ(told(openFlight()), "");
        EXPECT_EQ(recordOf(record), record);
        EXPECT_EQ(framesOfFlight(), static_cast<unsigned long>(frames));
    }
}

// There is no escape in the syntax of these commands.
TEST_F(MacroCommands, refuseNamesWithQuotesAndBlanks) {
    expectRefused(openFlight("a \"b\" c.keyframe"), badFormat);
    expectRefused(openFlight("\"b c.keyframe"), badFormat);
}

TEST_F(MacroCommands, leaveTheKeyFramesWhenAFileCannotBeOpened) {
    ASSERT_EQ(told(openFlight()), "");
    host.program.recorder().start();
    expectRefused("OpenSettingsFile FileName=" + folder.file("none.keyframe"),
                  "Unable to open file for reading.");
    expectRefused("OpenSettingsFile FileName=", "Unable to open file for reading.");
    expectRefused(openCommand("bad.keyframe", "no key frames\n"), "Invalid file header.");
    EXPECT_THAT(host.program.recorder().stop(), IsEmpty());
    EXPECT_EQ(framesOfFlight(), 3U);
}

TEST_F(MacroCommands, replaceTheKeyFramesAndKeepThem) {
    ASSERT_EQ(told(openFlight()), "");
    EXPECT_EQ(framesOfFlight(), 3U);
    EXPECT_EQ(framesOfFlight(), 3U);
    ASSERT_EQ(told(openCommand("long.keyframe", StandingFlight{.frames = 7}.keyFrameFile())), "");
    EXPECT_EQ(framesOfFlight(), 7U);
    ASSERT_EQ(told(openCommand("empty.keyframe", "#!KeyFrame 1\n")), "");
    expectRefused("Animate AnimationDestination=ToFile", noFlight);
}

TEST_F(MacroCommands, recordAFlightThatIsReplayedWithItsDestination) {
    const std::string open = lineFor(openFlight());
    host.program.session().exportSetup().fileName = folder.file("flight.avi");
    const std::string toFile = lineFor("Animate AnimationDestination=ToFile");
    const std::string onScreen = lineFor("Animate AnimationDestination=OnScreen");
    const std::vector<std::string> record =
        recordOf({open, lineFor("Animate animationdestination=tofile"), onScreen});
    ASSERT_EQ(record.size(), 3U);
    EXPECT_EQ(record[1], toFile);
    EXPECT_EQ(record[2], onScreen);
    EXPECT_EQ(recordOf(record), record);
}

// As a user sees it who has no window.
TEST_F(MacroCommands, tellTheirErrorsOnOneLine) {
    const std::string macro = folder.write("scene.mcr", "# a scene\n" + lineFor("Fly") + "\n");
    const ProgramResult result = runProgram({"--batch", "--macro", macro});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "corvane: " + macro + ":2: " + lineFor("Fly") + " " + addOn +
                                 " error: Unknown macro command: Fly\n");
}

} // namespace
