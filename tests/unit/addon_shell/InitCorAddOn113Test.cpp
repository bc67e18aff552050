// The add-on's entry point.
#include "addon/shell/AddOnID.h"
#include "addon/shell/AddOnName.h"
#include "tests/support/HostTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;

class EntryPointTest : public EmptyHostTest {
protected:
    void TearDown() override {
        AddOnID = nullptr;
        EmptyHostTest::TearDown();
    }
};

TEST_F(EntryPointTest, registersTheAddOnAndItsCommandsUnderALock) {
    InitCorAddOn113();
    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilLockOn()",
                            "CorUtilAddOnRegister(110, \"Key Frame Animation\", \"" +
                                std::string(CORVANE_TEST_VERSION) + "\", \"Corvane, Inc.\")",
                            "CorUtilMacroAddCommandCallback(\"Key Frame Animation\", non-null)",
                            "CorUtilLockOff()"));
    EXPECT_EQ(host.records().at(1).depth, 1);
    EXPECT_EQ(host.records().at(2).depth, 1);
}

TEST_F(EntryPointTest, keepsItsIdentity) {
    InitCorAddOn113();
    ASSERT_EQ(host.app().addOns().all().size(), 1u);
    EXPECT_EQ(AddOnID, host.app().addOns().all().front().get());
}

TEST_F(EntryPointTest, makesItsCommandsKnown) {
    InitCorAddOn113();
    auto const* const command = host.app().addOnCommands().find(AddOnName);
    ASSERT_TRUE(command);
    EXPECT_EQ((*command)("Fly"), "Key Frame Animation error:\nUnknown macro command: Fly");
}

TEST_F(EntryPointTest, releasesTheLockWhenTheHostThrows) {
    host.throwAt("CorUtilMacroAddCommandCallback");
    EXPECT_THROW(InitCorAddOn113(), std::runtime_error);
    EXPECT_EQ(host.app().locks().depth(), 0);
}

} // namespace
