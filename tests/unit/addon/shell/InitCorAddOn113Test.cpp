// The add-on's entry point.
#include "addon/base/AddOnID.h"
#include "addon/base/AddOnName.h"
#include "addon/shell/MenuOption.h"
#include "tests/support/HostTest.h"
#include "tests/unit/addon/ui/FreshDialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char label[] = "&Key Frame Animation...";
const std::string dimOption =
    "CorUtilMenuSetSensitivity(\"Animate\", \"&Key Frame Animation...\", FALSE)";

class EntryPointTest : public EmptyHostTest {
protected:
    void TearDown() override {
        AddOnID = nullptr;
        EmptyHostTest::TearDown();
    }

    const FreshDialogs prompts;
};

TEST_F(EntryPointTest, registersEverythingInOrderUnderALock) {
    InitCorAddOn113();
    EXPECT_THAT(
        host.calls(),
        ElementsAre("CorUtilLockOn()",
                    "CorUtilAddOnRegister(110, \"Key Frame Animation\", \"" +
                        std::string(CORVANE_TEST_VERSION) + "\", \"Corvane, Inc.\")",
                    "CorUtilMenuAddOption(\"Animate\", \"&Key Frame Animation...\", 1, non-null)",
                    "CorUtilMacroAddCommandCallback(\"Key Frame Animation\", non-null)",
                    "CorUtilStateChangeAddCallbackX(CallbackFunction=non-null, StateChangeMode=2, "
                    "StateChangeCallbackAPI=1)",
                    "CorUtilFrameGetCount()", dimOption, "CorUtilLockOff()"));
    for (std::size_t index = 1; index + 1 < host.records().size(); ++index) {
        EXPECT_EQ(host.records().at(index).depth, 1) << host.records().at(index).call;
    }
}

TEST_F(EntryPointTest, keepsItsIdentity) {
    InitCorAddOn113();
    ASSERT_EQ(host.session().addOns().all().size(), 1u);
    EXPECT_EQ(AddOnID, host.session().addOns().all().front().get());
}

TEST_F(EntryPointTest, makesItsCommandsKnown) {
    InitCorAddOn113();
    const auto* const command = host.session().addOnCommands().find(AddOnName);
    ASSERT_TRUE(command);
    EXPECT_EQ((*command)("Fly"), "Key Frame Animation error:\nUnknown macro command: Fly");
}

TEST_F(EntryPointTest, dimsTheOptionWithoutFrame) {
    InitCorAddOn113();
    EXPECT_THAT(host.mainMenu().options("Animate"), ElementsAre(label));
    EXPECT_FALSE(host.mainMenu().isSensitive("Animate", label));
}

TEST_F(EntryPointTest, makesTheOptionUsableOverDataIn3D) {
    host.addFrame();
    InitCorAddOn113();
    EXPECT_TRUE(host.mainMenu().isSensitive("Animate", label));
}

TEST_F(EntryPointTest, makesTheOptionLaunchTheDialog) {
    host.addFrame();
    InitCorAddOn113();
    host.mainMenu().choose("Animate", label);
    EXPECT_THAT(host.gui().dialogsUp(), ElementsAre("Key Frame Animation"));
    EXPECT_EQ(host.session().locks().depth(), 0);
}

TEST_F(EntryPointTest, listensToStateChangesFromThenOn) {
    InitCorAddOn113();
    host.addFrame();
    host.session().pageChanged(StateChange_FrameCreated);
    host.runIdle();
    EXPECT_TRUE(host.mainMenu().isSensitive("Animate", label));
    host.setPlotType(PlotType_Cartesian2D);
    host.runIdle();
    EXPECT_FALSE(host.mainMenu().isSensitive("Animate", label));
}

TEST_F(EntryPointTest, forgetsHandlesOfAnEarlierHost) {
    Dialog1Manager = 17;
    NumCycles_TFS_D3 = 18;
    InitCorAddOn113();
    EXPECT_EQ(Dialog1Manager, COR_HANDLE_NOT_CREATED);
    EXPECT_EQ(NumCycles_TFS_D3, COR_HANDLE_NOT_CREATED);
}

class WindowlessEntryPointTest : public WindowlessHostTest {
protected:
    void TearDown() override {
        AddOnID = nullptr;
        HostTest::TearDown();
    }

    const FreshDialogs prompts;
};

TEST_F(WindowlessEntryPointTest, hasCommandsAndNoDialog) {
    InitCorAddOn113();
    DialogMain::launch();
    EXPECT_EQ(Dialog1Manager, COR_HANDLE_NOT_CREATED);
    EXPECT_THAT(host.callsOf("CorGUIDialogLaunch"), IsEmpty());
    EXPECT_TRUE(host.session().addOnCommands().find(AddOnName));
}

TEST_F(EntryPointTest, releasesTheLockWhereverTheHostThrows) {
    for (const char* const operation :
         {"CorUtilAddOnRegister", "CorUtilMenuAddOption", "CorUtilMacroAddCommandCallback",
          "CorUtilStateChangeAddCallbackX", "CorUtilFrameGetCount", "CorUtilMenuSetSensitivity"}) {
        host.throwAt(operation);
        EXPECT_THROW(InitCorAddOn113(), std::runtime_error) << operation;
        EXPECT_EQ(host.session().locks().depth(), 0) << operation;
    }
}

} // namespace
