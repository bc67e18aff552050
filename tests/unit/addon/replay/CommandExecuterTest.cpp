// What the macro commands do.
#include "addon/macro/MacroManager.h"
#include "addon/replay/CommandExecuterAbstractFactory.h"
#include "tests/cases/FlightCases.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/ui/DialogMainTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

using Factory = CommandExecuterAbstractFactory;
using Parameters = std::vector<std::pair<Parameter_e, std::string>>;

template <typename T>
std::string refusalOf(Parameter_e parameter, const Parameters& parameters, T& value) {
    try {
        CommandExecuterAbstract::getRequiredParameter(parameter, parameters, value);
    } catch (const KeyFrameError& error) {
        return error.what();
    }
    return "(none)";
}

const std::string missingFileName =
    "Invalid macro command: missing value for parameter \"FileName\"";
const std::string missingDestination =
    "Invalid macro command: missing value for parameter \"AnimationDestination\"";
const std::string invalidDestination =
    "Invalid macro command: invalid value for parameter \"AnimationDestination\"";

TEST(RequiredParameter, isTheFirstOfItsKind) {
    std::string value;
    EXPECT_EQ(refusalOf(Parameter_FileName,
                        {{Parameter_AnimationDestination, "ToFile"},
                         {Parameter_FileName, "a"},
                         {Parameter_FileName, "b"}},
                        value),
              "(none)");
    EXPECT_EQ(value, "a");
}

TEST(RequiredParameter, isTakenAsItStandsForAString) {
    for (const std::string text : {"", "a b", " x ", "ToFile"}) {
        std::string value = "before";
        EXPECT_EQ(refusalOf(Parameter_FileName, {{Parameter_FileName, text}}, value), "(none)");
        EXPECT_EQ(value, text);
    }
}

TEST(RequiredParameter, isADestinationInAnyLetterCase) {
    for (const std::string text : {"ToFile", "tofile", "TOFILE"}) {
        Destination_e value = Destination_OnScreen;
        EXPECT_EQ(refusalOf(Parameter_AnimationDestination,
                            {{Parameter_AnimationDestination, text}}, value),
                  "(none)");
        EXPECT_EQ(value, Destination_ToFile);
    }
}

TEST(RequiredParameter, mustBeThere) {
    std::string value = "before";
    EXPECT_EQ(refusalOf(Parameter_FileName, {}, value), missingFileName);
    EXPECT_EQ(refusalOf(Parameter_FileName, {{Parameter_AnimationDestination, "x"}}, value),
              missingFileName);
    EXPECT_EQ(value, "before");
}

TEST(RequiredParameter, mustConvert) {
    for (const std::string text : {"AVI", "", "ToFile ", "1"}) {
        Destination_e value = Destination_ToFile;
        EXPECT_EQ(refusalOf(Parameter_AnimationDestination,
                            {{Parameter_AnimationDestination, text},
                             {Parameter_AnimationDestination, "OnScreen"}},
                            value),
                  invalidDestination);
        EXPECT_EQ(value, Destination_ToFile);
    }
}

TEST(ExecuterFactory, makesOneForEachCommand) {
    EXPECT_TRUE(dynamic_cast<Factory::CommandExecuterOpenSettings*>(
        Factory::getMacroExecuter(Command_OpenSettingsFile).get()));
    EXPECT_TRUE(dynamic_cast<Factory::CommandExecuterAnimate*>(
        Factory::getMacroExecuter(Command_Animate).get()));
}

TEST(ExecuterFactory, makesNoneForAnythingElse) {
    EXPECT_FALSE(Factory::getMacroExecuter(static_cast<Command_e>(2)));
    EXPECT_FALSE(Factory::getMacroExecuter(static_cast<Command_e>(-1)));
}

class ExecuterTest : public DialogMainTest {
protected:
    // What the host is told when the command fails; empty when it succeeds.
    static std::string run(std::string command) {
        char* message = nullptr;
        const bool succeeded = MacroManager::corvaneCallback(command.data(), &message) != FALSE;
        EXPECT_EQ(succeeded, message == nullptr);
        const std::string text = message ? message : "";
        CorUtilStringDealloc(&message);
        return text;
    }

    static std::string refused(const std::string& message) {
        return "Key Frame Animation error:\n" + message;
    }

    void fillDialog() {
        ListModelKeyFrame model;
        model.setDataList(flightCase("Orbit").keyFrames);
        dialog.applyDataModel(model);
    }

    void expectUntouchedDialog() {
        EXPECT_EQ(dialog.settings(), defaultSettings());
        EXPECT_EQ(dialog.model().dataList(), flightCase("Orbit").keyFrames);
        EXPECT_EQ(dialog.currentFile().fileName(), "animation.keyframe");
    }

    const TempFolder folder;
};

TEST_F(ExecuterTest, opensAFileIntoTheDialog) {
    fillDialog();
    Settings_s settings = defaultSettings();
    settings.destination = Destination_ToFile;
    settings.fadeOut = true;
    dialog.applySettings(settings);
    const std::string fileName = folder.write(
        "my flight.kf", header + settingsBlock("FadeIn true\n") + block("Name \"one\"\n"));
    EXPECT_EQ(run("OpenSettingsFile FileName=\"" + fileName + "\""), "");
    settings.fadeIn = true;
    EXPECT_EQ(dialog.settings(), settings);
    ASSERT_EQ(dialog.model().size(), 1u);
    EXPECT_EQ(dialog.model().name(0), "one");
    EXPECT_EQ(dialog.currentFile().fileName(), fileName);
}

TEST_F(ExecuterTest, recordsAnOpenedFileAgain) {
    const std::string fileName = folder.write("a.keyframe", header);
    host.program().recorder().start();
    EXPECT_EQ(run("opensettingsfile filename=" + fileName), "");
    EXPECT_THAT(host.program().recorder().stop(),
                ElementsAre("$!EXTCOMMAND \"Key Frame Animation\" \"OpenSettingsFile FileName=" +
                            fileName + "\""));
}

TEST_F(ExecuterTest, leavesTheDialogAloneWhenAFileCannotBeRead) {
    fillDialog();
    host.program().recorder().start();
    EXPECT_EQ(run("OpenSettingsFile FileName=" + folder.file("missing.kf")),
              refused("Unable to open file for reading."));
    EXPECT_EQ(run("OpenSettingsFile FileName="), refused("Unable to open file for reading."));
    EXPECT_EQ(run("OpenSettingsFile FileName=" + folder.write("bad.kf", header + "x\n")),
              refused(located("Unknown section header: x", 2)));
    expectUntouchedDialog();
    EXPECT_THAT(host.recordedCommands(), IsEmpty());
}

TEST_F(ExecuterTest, needsAFileName) {
    fillDialog();
    EXPECT_EQ(run("OpenSettingsFile"), refused(missingFileName));
    EXPECT_EQ(run("OpenSettingsFile AnimationDestination=ToFile"), refused(missingFileName));
    expectUntouchedDialog();
}

TEST_F(ExecuterTest, needsADestinationBeforeAnythingElse) {
    fillDialog();
    EXPECT_EQ(run("Animate"), refused(missingDestination));
    EXPECT_EQ(run("Animate FileName=a"), refused(missingDestination));
    EXPECT_EQ(run("Animate AnimationDestination=AVI"), refused(invalidDestination));
    expectUntouchedDialog();
    EXPECT_THAT(host.calls(),
                ElementsAre(lockStart, lockFinish, lockStart, lockFinish, lockStart, lockFinish));
}

TEST_F(ExecuterTest, playsTheDialogsKeyFramesOnScreen) {
    fillDialog();
    EXPECT_EQ(run("Animate AnimationDestination=onscreen"), "");
    EXPECT_EQ(host.renderer().renders(), 31u);
    EXPECT_THAT(host.movies().movies(), IsEmpty());
    EXPECT_EQ(dialog.settings(), defaultSettings());
}

TEST_F(ExecuterTest, playsToAFileAndKeepsTheDestination) {
    fillDialog();
    host.session().exportSetup().fileName = folder.file("flight.avi");
    EXPECT_EQ(run("Animate AnimationDestination=tofile"), "");
    ASSERT_EQ(host.movies().movies().size(), 1u);
    EXPECT_EQ(host.movies().movies().front().pictures, 31u);
    EXPECT_TRUE(host.movies().movies().front().finished);
    Settings_s settings = defaultSettings();
    settings.destination = Destination_ToFile;
    EXPECT_EQ(dialog.settings(), settings);
}

TEST_F(ExecuterTest, recordsAReplayedFlightAgain) {
    fillDialog();
    host.program().recorder().start();
    EXPECT_EQ(run("animate animationdestination=ONSCREEN"), "");
    EXPECT_THAT(host.program().recorder().stop(),
                ElementsAre("$!EXTCOMMAND \"Key Frame Animation\" "
                            "\"Animate AnimationDestination=OnScreen\""));
}

TEST_F(ExecuterTest, keepsTheDestinationOfAFlightThatFails) {
    EXPECT_EQ(run("Animate AnimationDestination=ToFile"),
              refused("At least two keyFrame views must be established to perform an animation."));
    EXPECT_EQ(dialog.settings().destination, Destination_ToFile);
}

TEST_F(ExecuterTest, reportsAFlightThatTheUserStops) {
    fillDialog();
    host.program().recorder().start();
    host.stopAtCheck(3);
    EXPECT_EQ(run("Animate AnimationDestination=OnScreen"), refused("Animation canceled."));
    EXPECT_THAT(host.recordedCommands(), IsEmpty());
}

TEST_F(ExecuterTest, letsOtherErrorsOfTheHostPass) {
    fillDialog();
    host.throwAt("CorUtilRedraw", 2);
    EXPECT_THROW(run("Animate AnimationDestination=OnScreen"), std::runtime_error);
}

} // namespace
