// The program's window, ended from outside: what was recorded until then is there, whole.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

class StoppedWindow : public ::testing::TestWithParam<int> {
protected:
    /// With the body of the wake, and this behind it.
    Program open(const std::string& macro) {
        folder.write("scene.mcr", "$!READDATA \"" + exampleFile("wake/body.vtp") + "\"\n" + macro);
        return Program({"--macro", folder.file("scene.mcr"), "--record", folder.file("all.mcr"),
                        "--trace", "/dev/stderr"});
    }

    const TempFolder folder;
};

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
    folder.write("long.keyframe", StandingFlight{.frames = 400}.keyFrameFile());
    Program program =
        open("$!EXPORTSETUP ExportFName = \"" + folder.file("film.avi") +
             "\"\n"
             "$!EXPORTSETUP ImageWidth = 32\n"
             "$!EXTCOMMAND \"Key Frame Animation\" \"OpenSettingsFile FileName=\\\"" +
             folder.file("long.keyframe") +
             "\\\"\"\n"
             "$!EXTCOMMAND \"Key Frame Animation\" \"Animate AnimationDestination=ToFile\"\n");
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
