// What no command did is recorded all the same.
#include "host/core/commands/UncommandedChanges.h"

#include "host/core/commands/SceneMacro.h"
#include "tests/unit/host/core/commands/MacroTest.h"

#include <gmock/gmock.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class UncommandedChangesTest : public MacroTest {
protected:
    UncommandedChangesTest() {
        play("$!READDATA x\n");
        startRecording(session, program.recorder());
        m_scene = program.recorder().lines().size();
    }

    /// What was recorded after the scene.
    std::vector<std::string> recorded() {
        const std::vector<std::string>& lines = program.recorder().lines();
        return {lines.begin() + static_cast<std::ptrdiff_t>(m_scene), lines.end()};
    }

private:
    std::size_t m_scene = 0;
};

TEST_F(UncommandedChangesTest, nothingThatCommandsDidIsRecordedTwice) {
    program.perform("VIEW", {"FIT"});
    program.perform("VIEW", {"AXIS", "=", "+X"});
    program.perform("SOLUTIONTIME", {"=", "2"});
    program.perform("WORKAREA", {"Width", "=", "100", "Height", "=", "100"});
    program.perform("READDATA", {"/there/y"});
    program.perform("FRAME", {"CREATE"});
    EXPECT_THAT(recorded(), ElementsAre("$!VIEW FIT", "$!VIEW AXIS = +X", "$!SOLUTIONTIME = 2",
                                        "$!WORKAREA Width = 100 Height = 100",
                                        HasSubstr("$!READDATA"), "$!FRAME CREATE"));
}

TEST_F(UncommandedChangesTest, viewsAndTimesThatWereSetOtherwiseComeBeforeTheNextCommand) {
    session.rotateView(RotateAxis_Psi, 10.0);
    session.rotateView(RotateAxis_Psi, 10.0);
    session.setSolutionTime(3.5);
    program.perform("STYLE", {"Slice/1/Show", "=", "false"});
    EXPECT_THAT(recorded(), ElementsAre(HasSubstr("$!VIEW SET Psi = 85 "), "$!SOLUTIONTIME = 3.5",
                                        "$!STYLE Slice/1/Show = false"));
}

TEST_F(UncommandedChangesTest, viewsBelongToTheFrameThatWasActive) {
    program.perform("FRAME", {"CREATE"});
    session.activateFrame(1);
    program.macros().uncommanded().remember();
    session.rotateView(RotateAxis_Theta, 5.0);
    program.perform("FRAME", {"ACTIVATE", "=", "2"});
    EXPECT_THAT(recorded(),
                ElementsAre("$!FRAME CREATE", HasSubstr("$!VIEW SET"), "$!FRAME ACTIVATE = 2"));
}

TEST_F(UncommandedChangesTest, theLastViewIsThereAtTheEnd) {
    session.rotateView(RotateAxis_Alpha, 5.0);
    EXPECT_THAT(program.recorder().stop().back(), HasSubstr("Alpha = 5 "));
    session.rotateView(RotateAxis_Alpha, 5.0);
    program.recorder().start();
    EXPECT_THAT(program.recorder().stop(), IsEmpty());
}

TEST_F(UncommandedChangesTest, aWorkAreaThatWasResizedIsRecordedOnce) {
    session.silentPage().resizeWorkArea({500, 400, 62.5});
    program.macros().uncommanded().catchUp();
    session.silentPage().resizeWorkArea({600, 400, 70.0});
    EXPECT_THAT(recorded(), ElementsAre("$!WORKAREA Width = 600 Height = 400 PixelsPerInch = 70"));
}

TEST_F(UncommandedChangesTest, aSizeThatTheUserChoseIsNotThatOfAMacro) {
    program.macros().keepPictureSize();
    session.silentPage().resizeWorkArea({640, 360, 80.0});
    program.perform("WORKAREA",
                    {"Width", "=", "1000", "Height", "=", "500", "PixelsPerInch", "=", "125"});
    EXPECT_THAT(recorded(), ElementsAre("$!WORKAREA Width = 640 Height = 360"));
}

TEST_F(UncommandedChangesTest, aCommandThatAnAddOnDoesNotRecordLeavesItsView) {
    bool isRecorded = false;
    session.addOnCommands().add("Turn", [&](const std::string& command) {
        session.rotateView(RotateAxis_Psi, 10.0);
        if (isRecorded) {
            program.recorder().recordAddOnCommand("Turn", command);
        }
        return std::nullopt;
    });
    program.perform("EXTCOMMAND", {"Turn", "silently"});
    EXPECT_THAT(recorded(), ElementsAre(HasSubstr("$!VIEW SET")));
    isRecorded = true;
    program.perform("EXTCOMMAND", {"Turn", "loudly"});
    EXPECT_THAT(recorded().back(), HasSubstr("loudly"));
}

TEST_F(UncommandedChangesTest, whatAFlightLeadsToIsKnownByItsCommand) {
    session.status().start("Flying", true, true);
    session.rotateView(RotateAxis_Psi, 10.0);
    program.recorder().recordAddOnCommand("Flights", "Fly");
    session.status().finish();
    EXPECT_THAT(recorded(), ElementsAre(R"($!EXTCOMMAND "Flights" "Fly")"));
}

TEST_F(UncommandedChangesTest, aFlightWithoutACommandLeavesItsView) {
    session.status().start("Flying", true, true);
    session.rotateView(RotateAxis_Psi, 10.0);
    EXPECT_THAT(recorded(), IsEmpty());
    session.status().finish();
    EXPECT_THAT(recorded(), ElementsAre(HasSubstr("$!VIEW SET")));
}

} // namespace
} // namespace corvane::host
