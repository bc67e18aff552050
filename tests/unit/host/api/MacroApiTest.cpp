// Macro commands of add-ons, and recording.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

#include <cstring>
#include <sstream>
#include <stdexcept>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// What the callback was given, and what it is to do.
struct Script {
    std::vector<std::string> commands;
    bool messageWasNull = false;
    const char* message = nullptr; ///< null: leaves the message alone
    CorBool result = TRUE;
    bool throws = false;
    bool locks = false;
};
Script script;

CorBool runCommand(char* commandString, char** errorMessage) {
    script.commands.emplace_back(commandString);
    script.messageWasNull = *errorMessage == nullptr;
    std::memset(commandString, '*', std::strlen(commandString));
    if (script.message) {
        *errorMessage = CorUtilStringAlloc(static_cast<long>(std::strlen(script.message)));
        std::strcpy(*errorMessage, script.message);
    }
    if (script.locks) {
        CorUtilLockStart(nullptr);
        CorUtilDrawGraphics(FALSE);
    }
    if (script.throws) {
        throw std::runtime_error("thrown by the add-on");
    }
    return script.result;
}

class MacroApiTest : public HostTest {
protected:
    MacroApiTest() {
        script = {};
        CorUtilMacroAddCommandCallback("Kites", &runCommand);
    }

    std::optional<std::string> run(const std::string& command) {
        return (*host.session().addOnCommands().find("Kites"))(command);
    }

    std::size_t freedStrings() const { return host.timesEntered("CorUtilStringDealloc"); }
};

TEST_F(MacroApiTest, theCallbackGetsAWritableCopyWithoutTrailingBlanks) {
    const std::string command = "  fly  \"a b\" \t \r\n";
    EXPECT_EQ(run(command), std::nullopt);
    EXPECT_THAT(script.commands, ElementsAre("  fly  \"a b\""));
    EXPECT_TRUE(script.messageWasNull);
    EXPECT_EQ(command, "  fly  \"a b\" \t \r\n");
}

TEST_F(MacroApiTest, blanksAloneBecomeAnEmptyCommand) {
    EXPECT_EQ(run("   "), std::nullopt);
    EXPECT_EQ(run(""), std::nullopt);
    EXPECT_THAT(script.commands, ElementsAre("", ""));
}

TEST_F(MacroApiTest, aFailureBringsItsMessage) {
    script.result = FALSE;
    script.message = "Kites error:\nno wind";
    EXPECT_EQ(run("fly"), "Kites error:\nno wind");
    EXPECT_EQ(freedStrings(), 1U);
}

TEST_F(MacroApiTest, aFailureMayHaveNoMessage) {
    script.result = FALSE;
    EXPECT_EQ(run("fly"), "");
}

TEST_F(MacroApiTest, theMessageOfASuccessIsFreedAndIgnored) {
    script.message = "all is well";
    EXPECT_EQ(run("fly"), std::nullopt);
    EXPECT_EQ(freedStrings(), 1U);
}

TEST_F(MacroApiTest, anExceptionIsAFailureAndLeavesNoLocks) {
    script.throws = true;
    script.locks = true;
    script.message = "freed as well";
    EXPECT_EQ(run("fly"), "thrown by the add-on");
    EXPECT_EQ(freedStrings(), 1U);
    EXPECT_EQ(host.session().locks().depth(), 0);
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_F(MacroApiTest, locksLeftWithoutAnExceptionAreMisuseAndPutBack) {
    host.expectMisuse("the command \"Kites\" of unit_host_api: locks are not balanced");
    host.expectMisuse("the command \"Kites\" of unit_host_api: suspended drawing is not balanced");
    script.locks = true;
    EXPECT_EQ(run("fly"), std::nullopt);
    EXPECT_EQ(host.session().locks().depth(), 0);
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_F(MacroApiTest, aReplayReachesTheCallbackAndTellsWhereItFailed) {
    std::istringstream good("$!EXTCOMMAND \"Kites\" \"fly \\\"a b\\\" \"\n");
    host.program().macros().play(good, "good.mcr", ".");
    EXPECT_THAT(script.commands, ElementsAre("fly \"a b\""));
    script.result = FALSE;
    script.message = "no wind";
    std::istringstream bad("\n$!EXTCOMMAND \"Kites\" \"fly\"\n");
    try {
        host.program().macros().play(bad, "bad.mcr", ".");
        FAIL() << "the macro went on";
    } catch (const host::MacroError& error) {
        EXPECT_THAT(error.what(), HasSubstr("bad.mcr"));
        EXPECT_THAT(error.what(), HasSubstr("2"));
        EXPECT_THAT(error.what(), HasSubstr("no wind"));
    }
}

TEST_F(MacroApiTest, aNameIsTakenOnce) {
    EXPECT_EQ(CorUtilMacroAddCommandCallback("Kites", &runCommand), FALSE);
    EXPECT_EQ(CorUtilMacroAddCommandCallback("kites", &runCommand), TRUE);
}

TEST_F(MacroApiTest, recordingKeepsLinesInOrder) {
    host.program().recorder().start();
    EXPECT_EQ(CorUtilMacroIsRecordingActive(), TRUE);
    EXPECT_EQ(CorUtilMacroRecordRawCommand("$!EXPORTSETUP AnimationSpeed = 30"), TRUE);
    EXPECT_EQ(CorUtilMacroRecordExtCommand("Kites", "fly \"a\\b\""), TRUE);
    EXPECT_THAT(host.program().recorder().stop(),
                ElementsAre("$!EXPORTSETUP AnimationSpeed = 30",
                            "$!EXTCOMMAND \"Kites\" \"fly \\\"a\\\\b\\\"\""));
}

TEST_F(MacroApiTest, withoutRecordingNothingIsKept) {
    EXPECT_EQ(CorUtilMacroIsRecordingActive(), FALSE);
    EXPECT_EQ(CorUtilMacroRecordRawCommand("$!REDRAW"), FALSE);
    EXPECT_EQ(CorUtilMacroRecordExtCommand("Kites", "fly"), FALSE);
    EXPECT_THAT(host.program().recorder().lines(), IsEmpty());
}

TEST_F(MacroApiTest, nullIsMisuse) {
    host.expectMisuse("CorUtilMacroAddCommandCallback: an argument is NULL");
    host.expectMisuse("CorUtilMacroRecordExtCommand: an argument is NULL");
    host.expectMisuse("CorUtilMacroRecordRawCommand: line is NULL");
    host.program().recorder().start();
    EXPECT_EQ(CorUtilMacroAddCommandCallback(nullptr, &runCommand), FALSE);
    EXPECT_EQ(CorUtilMacroAddCommandCallback("Gliders", nullptr), FALSE);
    EXPECT_EQ(CorUtilMacroRecordExtCommand(nullptr, "fly"), FALSE);
    EXPECT_EQ(CorUtilMacroRecordExtCommand("Kites", nullptr), FALSE);
    EXPECT_EQ(CorUtilMacroRecordRawCommand(nullptr), FALSE);
    EXPECT_EQ(host.misuse().size(), 5U);
    EXPECT_THAT(host.program().recorder().lines(), IsEmpty());
}

} // namespace
} // namespace corvane::test
