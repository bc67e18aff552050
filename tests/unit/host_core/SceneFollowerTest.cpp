// What no command did is recorded all the same.
#include "host/core/macro/SceneFollower.h"

#include "host/core/macro/SceneMacro.h"
#include "tests/unit/host_core/MacroTest.h"

#include <gmock/gmock.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SceneFollowerTest : public MacroTest {
protected:
    SceneFollowerTest() {
        play("$!READDATA x\n");
        startRecording(app);
        m_scene = app.recorder().lines().size();
    }

    /// What was recorded after the scene.
    std::vector<std::string> recorded() {
        const std::vector<std::string>& lines = app.recorder().lines();
        return {lines.begin() + static_cast<std::ptrdiff_t>(m_scene), lines.end()};
    }

private:
    std::size_t m_scene = 0;
};

TEST_F(SceneFollowerTest, NothingThatCommandsDidIsRecordedTwice) {
    app.perform("VIEW", {"FIT"});
    app.perform("VIEW", {"AXIS", "=", "+X"});
    app.perform("SOLUTIONTIME", {"=", "2"});
    app.perform("WORKAREA", {"Width", "=", "100", "Height", "=", "100"});
    app.perform("READDATA", {"/there/y"});
    app.perform("FRAME", {"CREATE"});
    EXPECT_THAT(recorded(), ElementsAre("$!VIEW FIT", "$!VIEW AXIS = +X", "$!SOLUTIONTIME = 2",
                                        "$!WORKAREA Width = 100 Height = 100",
                                        HasSubstr("$!READDATA"), "$!FRAME CREATE"));
}

TEST_F(SceneFollowerTest, ViewsAndTimesThatWereSetOtherwiseComeBeforeTheNextCommand) {
    app.rotateView(RotateAxis_Psi, 10.0);
    app.rotateView(RotateAxis_Psi, 10.0);
    app.setSolutionTime(3.5);
    app.perform("STYLE", {"Slice/1/Show", "=", "false"});
    EXPECT_THAT(recorded(), ElementsAre(HasSubstr("$!VIEW SET Psi = 85 "), "$!SOLUTIONTIME = 3.5",
                                        "$!STYLE Slice/1/Show = false"));
}

TEST_F(SceneFollowerTest, ViewsBelongToTheFrameThatWasActive) {
    app.perform("FRAME", {"CREATE"});
    app.activateFrame(1);
    app.macros().follower().remember();
    app.rotateView(RotateAxis_Theta, 5.0);
    app.perform("FRAME", {"ACTIVATE", "=", "2"});
    EXPECT_THAT(recorded(),
                ElementsAre("$!FRAME CREATE", HasSubstr("$!VIEW SET"), "$!FRAME ACTIVATE = 2"));
}

TEST_F(SceneFollowerTest, TheLastViewIsThereAtTheEnd) {
    app.rotateView(RotateAxis_Alpha, 5.0);
    EXPECT_THAT(app.recorder().stop().back(), HasSubstr("Alpha = 5 "));
    app.rotateView(RotateAxis_Alpha, 5.0);
    app.recorder().start();
    EXPECT_THAT(app.recorder().stop(), IsEmpty());
}

TEST_F(SceneFollowerTest, AWorkAreaThatWasResizedIsRecordedOnce) {
    app.page().resizeWorkArea({500, 400, 62.5});
    app.macros().follower().catchUp();
    app.page().resizeWorkArea({600, 400, 70.0});
    EXPECT_THAT(recorded(), ElementsAre("$!WORKAREA Width = 600 Height = 400 PixelsPerInch = 70"));
}

TEST_F(SceneFollowerTest, ASizeThatTheUserChoseIsNotThatOfAMacro) {
    app.macros().keepPictureSize();
    app.page().resizeWorkArea({640, 360, 80.0});
    app.perform("WORKAREA",
                {"Width", "=", "1000", "Height", "=", "500", "PixelsPerInch", "=", "125"});
    EXPECT_THAT(recorded(), ElementsAre("$!WORKAREA Width = 640 Height = 360"));
}

TEST_F(SceneFollowerTest, ACommandThatAnAddOnDoesNotRecordLeavesItsView) {
    bool isRecorded = false;
    app.addOnCommands().add("Turn", [&](const std::string& command) {
        app.rotateView(RotateAxis_Psi, 10.0);
        if (isRecorded) {
            app.recorder().recordAddOnCommand("Turn", command);
        }
        return std::nullopt;
    });
    app.perform("EXTCOMMAND", {"Turn", "silently"});
    EXPECT_THAT(recorded(), ElementsAre(HasSubstr("$!VIEW SET")));
    isRecorded = true;
    app.perform("EXTCOMMAND", {"Turn", "loudly"});
    EXPECT_THAT(recorded().back(), HasSubstr("loudly"));
}

TEST_F(SceneFollowerTest, WhatAFlightLeadsToIsKnownByItsCommand) {
    app.status().start("Flying", true, true);
    app.rotateView(RotateAxis_Psi, 10.0);
    app.recorder().recordAddOnCommand("Flights", "Fly");
    app.status().finish();
    EXPECT_THAT(recorded(), ElementsAre(R"($!EXTCOMMAND "Flights" "Fly")"));
}

TEST_F(SceneFollowerTest, AFlightWithoutACommandLeavesItsView) {
    app.status().start("Flying", true, true);
    app.rotateView(RotateAxis_Psi, 10.0);
    EXPECT_THAT(recorded(), IsEmpty());
    app.status().finish();
    EXPECT_THAT(recorded(), ElementsAre(HasSubstr("$!VIEW SET")));
}

} // namespace
} // namespace corvane::host
