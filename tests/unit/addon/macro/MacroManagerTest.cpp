// The add-on's commands in the host's macros.
#include "addon/macro/MacroManager.h"
#include "host/core/macro/MacroText.h"
#include "tests/unit/addon/ui/DialogMainTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MacroManagerTest : public DialogMainTest {
protected:
    // What the host is handed for a command that fails.
    static std::string errorOf(std::string command) {
        char* message = nullptr;
        EXPECT_EQ(MacroManager::corvaneCallback(command.data(), &message), FALSE) << command;
        const std::string text = message ? message : "(unset)";
        CorUtilStringDealloc(&message);
        return text;
    }

    std::vector<int> depths() const {
        std::vector<int> result;
        for (const auto& record : host.records()) {
            result.push_back(record.depth);
        }
        return result;
    }
};

TEST_F(MacroManagerTest, isOneForTheProcess) {
    EXPECT_EQ(&MacroManager::instance(), &MacroManager::instance());
}

TEST_F(MacroManagerTest, recordsUnderTwoLocks) {
    host.program().recorder().start();
    MacroManager::instance().recordCommand(Command_Animate,
                                           {{Parameter_AnimationDestination, "OnScreen"}});
    EXPECT_THAT(host.calls(), ElementsAre(lockStart, lockStart, "CorUtilMacroIsRecordingActive()",
                                          "CorUtilMacroRecordExtCommand(\"Key Frame Animation\", "
                                          "\"Animate AnimationDestination=OnScreen\")",
                                          lockFinish, lockFinish));
    EXPECT_THAT(depths(), ElementsAre(1, 2, 2, 2, 1, 0));
    EXPECT_THAT(host.program().recorder().stop(),
                ElementsAre("$!EXTCOMMAND \"Key Frame Animation\" "
                            "\"Animate AnimationDestination=OnScreen\""));
}

TEST_F(MacroManagerTest, recordsNothingWithoutARecording) {
    MacroManager::instance().recordCommand(Command_Animate, {});
    EXPECT_THAT(host.calls(), ElementsAre(lockStart, lockStart, "CorUtilMacroIsRecordingActive()",
                                          lockFinish, lockFinish));
}

TEST_F(MacroManagerTest, releasesBothLocksWhenACommandHasNoKeyword) {
    host.program().recorder().start();
    EXPECT_THROW(MacroManager::instance().recordCommand(static_cast<Command_e>(2), {}),
                 std::out_of_range);
    EXPECT_THAT(depths(), ElementsAre(1, 2, 2, 1, 0));
}

TEST_F(MacroManagerTest, releasesBothLocksWhenTheHostThrows) {
    host.program().recorder().start();
    host.throwAt("CorUtilMacroRecordExtCommand");
    EXPECT_THROW(MacroManager::instance().recordCommand(Command_Animate, {}), std::runtime_error);
}

TEST_F(MacroManagerTest, registersItsCallback) {
    MacroManager::registerCallback();
    EXPECT_THAT(host.calls(), ElementsAre("CorUtilMacroAddCommandCallback(\"Key Frame Animation\", "
                                          "non-null)"));
    ASSERT_TRUE(host.session().addOnCommands().find("Key Frame Animation"));
    const auto failure = (*host.session().addOnCommands().find("Key Frame Animation"))("Fly");
    EXPECT_EQ(failure, "Key Frame Animation error:\nUnknown macro command: Fly");
}

TEST_F(MacroManagerTest, handsErrorsToTheHost) {
    EXPECT_EQ(errorOf(""), "Key Frame Animation error:\nInvalid macro command string.");
    EXPECT_EQ(errorOf("Fly"), "Key Frame Animation error:\nUnknown macro command: Fly");
    EXPECT_EQ(errorOf("Animate Foo=1"), "Key Frame Animation error:\nUnknown macro parameter: Foo");
    EXPECT_EQ(errorOf("Animate AnimationDestination"),
              "Key Frame Animation error:\nInvalid macro command string format.");
    EXPECT_EQ(errorOf("OpenSettingsFile FileName=\"a"),
              "Key Frame Animation error:\n"
              "Invalid macro command string format. Unmatched quotation mark.");
}

TEST_F(MacroManagerTest, handsErrorsToTheHostUnderALock) {
    errorOf("Fly");
    EXPECT_THAT(host.calls(), ElementsAre(lockStart, lockFinish));
}

TEST_F(MacroManagerTest, handsLongErrorsToTheHost) {
    const std::string command(100'000, 'x');
    EXPECT_EQ(errorOf(command), "Key Frame Animation error:\nUnknown macro command: " + command);
}

TEST_F(MacroManagerTest, formatsNothingThatAMessageHolds) {
    EXPECT_EQ(errorOf("%s%n"), "Key Frame Animation error:\nUnknown macro command: %s%n");
}

TEST_F(MacroManagerTest, leavesTheErrorUnsetWhenTheHostHasNoMemory) {
    host.failNext("CorUtilStringAlloc");
    char untouched[] = "untouched";
    char* message = untouched;
    char command[] = "Fly";
    EXPECT_EQ(MacroManager::corvaneCallback(command, &message), FALSE);
    EXPECT_EQ(message, untouched);
    EXPECT_THAT(host.calls(), ElementsAre(lockStart, lockFinish));
}

TEST_F(MacroManagerTest, letsOtherExceptionsPass) {
    char command[] = "Animate ";
    char untouched[] = "untouched";
    char* message = untouched;
    EXPECT_THROW(MacroManager::corvaneCallback(command, &message), std::out_of_range);
    EXPECT_EQ(message, untouched);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(MacroManagerTest, leavesTheCommandAlone) {
    char command[] = "Fly FileName=\"a b\"";
    char* message = nullptr;
    MacroManager::corvaneCallback(command, &message);
    CorUtilStringDealloc(&message);
    EXPECT_STREQ(command, "Fly FileName=\"a b\"");
}

TEST_F(MacroManagerTest, failsInTheHostsMacroWithItsMessage) {
    MacroManager::registerCallback();
    std::istringstream macro("$!EXTCOMMAND \"Key Frame Animation\" \"Animate   \"\n");
    try {
        host.program().macros().play(macro, "test.mcr", ".");
        FAIL() << "was played";
    } catch (const corvane::host::MacroError& error) {
        EXPECT_THAT(error.what(),
                    HasSubstr("Key Frame Animation error:\nInvalid macro command: missing value "
                              "for parameter \"AnimationDestination\""));
    }
}

} // namespace
