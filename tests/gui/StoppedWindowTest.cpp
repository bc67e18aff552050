// The program's window, ended from outside: what was recorded until then is there, whole.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

class ProgramWindow : public ::testing::Test {
protected:
    /// With the body of the wake, and this behind it.
    Program open(const std::string& macro) {
        folder.write("scene.mcr", "$!READDATA \"" + exampleFile("wake/body.vtp") + "\"\n" + macro);
        return Program({"--macro", folder.file("scene.mcr"), "--record", folder.file("all.mcr"),
                        "--trace", "/dev/stderr"});
    }

    std::string longMovie() const {
        folder.write("long.keyframe", StandingFlight{.frames = 400}.keyFrameFile());
        return "$!EXPORTSETUP ExportFName = \"" + folder.file("film.avi") +
               "\"\n"
               "$!EXPORTSETUP ImageWidth = 32\n"
               "$!EXTCOMMAND \"Key Frame Animation\" \"OpenSettingsFile FileName=\\\"" +
               folder.file("long.keyframe") +
               "\\\"\"\n"
               "$!EXTCOMMAND \"Key Frame Animation\" \"Animate "
               "AnimationDestination=ToFile\"\n";
    }

    const TempFolder folder;
};

class StoppedWindow : public ProgramWindow, public ::testing::WithParamInterface<int> {};

/// Its display is gone: the server ends the connection of the program alone.
class WindowWithoutDisplay : public ProgramWindow {
protected:
    static void takeDisplay() {
        ASSERT_EQ(std::system("xdotool search --onlyvisible --class corvane windowkill"), 0);
    }
};

TEST_F(WindowWithoutDisplay, writesItsRecording) {
    Program program = open("$!STYLE Annotations/Title = last\n"
                           "$!EXTCOMMAND \"Key Frame Animation\" \"OpenSettingsFile FileName=\\\"" +
                           exampleFile("wake/flight.keyframe") + "\\\"\"\n");
    ASSERT_TRUE(program.waitForError("CorUtilMacroRecordExtCommand"));
    takeDisplay();
    const ProgramResult result = program.finish();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("corvane: The display is gone"));
    EXPECT_THAT(folder.read("all.mcr"), HasSubstr("OpenSettingsFile"));
    EXPECT_THAT(folder.names(), UnorderedElementsAre("all.mcr", "scene.mcr"));
}

TEST_F(WindowWithoutDisplay, dropsTheMovieThatIsUnderWay) {
    Program program = open(longMovie());
    ASSERT_TRUE(program.waitForError("CorUtilExportNextFrame"));
    takeDisplay();
    EXPECT_EQ(program.finish().exitCode, 1);
    EXPECT_THAT(folder.read("all.mcr"), HasSubstr("ImageWidth = 32\n"));
    EXPECT_THAT(folder.names(), UnorderedElementsAre("all.mcr", "scene.mcr", "long.keyframe"));
}

TEST_P(StoppedWindow, writesItsRecording) {
    Program program = open("$!STYLE Annotations/Title = last\n"
                           "$!EXTCOMMAND \"Key Frame Animation\" \"OpenSettingsFile FileName=\\\"" +
                           exampleFile("wake/flight.keyframe") + "\\\"\"\n");
    ASSERT_TRUE(program.waitForError("CorUtilMacroRecordExtCommand"));
    program.signal(GetParam());
    EXPECT_EQ(program.finish().exitCode, 130);
    const std::string recorded = folder.read("all.mcr");
    EXPECT_THAT(recorded, HasSubstr("$!READDATA"));
    EXPECT_THAT(recorded, HasSubstr("$!STYLE Annotations/Title = last\n"));
    EXPECT_THAT(recorded, HasSubstr("OpenSettingsFile"));
    EXPECT_THAT(folder.names(), UnorderedElementsAre("all.mcr", "scene.mcr"));
}

TEST_P(StoppedWindow, dropsTheMovieThatIsUnderWay) {
    Program program = open(longMovie());
    ASSERT_TRUE(program.waitForError("CorUtilExportNextFrame"));
    // The trace of the frames that are left fills the pipe, which is read again after the signal.
    program.signal(GetParam());
    EXPECT_EQ(program.finish().exitCode, 130);
    EXPECT_THAT(folder.read("all.mcr"), ::testing::AllOf(HasSubstr("ImageWidth = 32\n"),
                                                         ::testing::Not(HasSubstr("Animate "))));
    EXPECT_THAT(folder.names(), UnorderedElementsAre("all.mcr", "scene.mcr", "long.keyframe"));
}

INSTANTIATE_TEST_SUITE_P(Signals, StoppedWindow, ::testing::Values(SIGINT, SIGTERM, SIGHUP),
                         [](const auto& signal) {
                             return std::string(signal.param == SIGINT    ? "Interrupt"
                                                : signal.param == SIGTERM ? "Terminate"
                                                                          : "HangUp");
                         });

} // namespace

} // namespace corvane::test
