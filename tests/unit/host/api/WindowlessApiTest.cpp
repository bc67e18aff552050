// Menus, dialogs and controls of a host without windows.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

namespace corvane::test {
namespace {

void callback() {}

class WindowlessApiTest : public WindowlessHostTest {};

TEST_F(WindowlessApiTest, thereIsNoMenu) {
    EXPECT_EQ(CorUtilMenuAddOption("Animate", "&Kites...", 1, &callback), FALSE);
    EXPECT_EQ(CorUtilMenuSetSensitivity("Animate", "&Kites...", TRUE), FALSE);
    EXPECT_EQ(host.calls().front(),
              "CorUtilMenuAddOption(\"Animate\", \"&Kites...\", 1, non-null)");
}

TEST_F(WindowlessApiTest, nullInAMenuIsMisuse) {
    host.expectMisuse("CorUtilMenuAddOption: an argument is NULL");
    host.expectMisuse("CorUtilMenuSetSensitivity: an argument is NULL");
    EXPECT_EQ(CorUtilMenuAddOption(nullptr, "a", 1, &callback), FALSE);
    EXPECT_EQ(CorUtilMenuAddOption("a", nullptr, 1, &callback), FALSE);
    EXPECT_EQ(CorUtilMenuAddOption("a", "b", 1, nullptr), FALSE);
    EXPECT_EQ(CorUtilMenuSetSensitivity(nullptr, "a", TRUE), FALSE);
    EXPECT_EQ(CorUtilMenuSetSensitivity("a", nullptr, TRUE), FALSE);
    EXPECT_EQ(host.misuse().size(), 5U);
}

TEST_F(WindowlessApiTest, nothingCanBeMade) {
    const char* const items[] = {" "};
    EXPECT_EQ(CorGUIDialogCreateModeless(-1, 1, 1, "a", &callback, &callback, nullptr), -2);
    EXPECT_EQ(
        CorGUIDialogCreateModal(-1, 1, 1, "a", &callback, &callback, nullptr, &callback, nullptr),
        -2);
    EXPECT_EQ(CorGUIButtonAdd(1, 0, 0, 9, 9, "a", &callback), -2);
    EXPECT_EQ(CorGUILabelAdd(1, 0, 0, "a"), -2);
    EXPECT_EQ(CorGUIFrameAdd(1, 0, 0, 9, 9, "a"), -2);
    EXPECT_EQ(CorGUITextFieldAdd(1, 0, 0, 9, 9, nullptr), -2);
    EXPECT_EQ(CorGUISpinTextFieldAdd(1, 0, 0, 9, 9, nullptr, &callback, &callback), -2);
    EXPECT_EQ(CorGUIToggleAdd(1, 0, 0, 9, 9, "a", nullptr), -2);
    EXPECT_EQ(CorGUIListAdd(1, 0, 0, 9, 9, TRUE, nullptr), -2);
    EXPECT_EQ(CorGUIOptionMenuAdd(1, 0, 0, 9, 9, items, 1, nullptr), -2);
    EXPECT_EQ(CorGUIRadioBoxAdd(1, 0, 0, 9, 9, items, 1, nullptr), -2);
    EXPECT_EQ(CorGUIMenuBarAdd(1), -2);
    EXPECT_EQ(CorGUIMenuAdd(1, "a"), -2);
    EXPECT_EQ(CorGUIMenuAddItem(1, "a", "b", &callback), -2);
    EXPECT_EQ(CorGUIMenuAddToggle(1, "a", "b", nullptr), -2);
}

TEST_F(WindowlessApiTest, whatIsAskedIsEmpty) {
    EXPECT_EQ(CorGUIDialogIsUp(-2), FALSE);
    EXPECT_EQ(CorGUIToggleGet(-2), FALSE);
    EXPECT_EQ(CorGUIListGetItemCount(-2), 0);
    EXPECT_EQ(CorGUIOptionMenuGet(-2), 0);
    EXPECT_EQ(CorGUIRadioBoxGetToggle(-2), 0);
    long storage = 5;
    long* positions = &storage;
    long count = 5;
    CorGUIListGetSelectedItems(-2, &positions, &count);
    EXPECT_EQ(positions, nullptr);
    EXPECT_EQ(count, 0);
    CorGUIListGetSelectedItems(-2, nullptr, nullptr);
}

TEST_F(WindowlessApiTest, theRestDoesNothing) {
    const int selected[] = {1, 2};
    CorGUIDialogLaunch(-2);
    CorGUIDialogDrop(-2);
    CorGUILabelSetText(-2, "a");
    CorGUITextFieldSetString(-2, "a");
    CorGUIToggleSet(-2, TRUE);
    CorGUIListAppendItem(-2, "a");
    CorGUIListDeleteAllItems(-2);
    CorGUIListDeleteItemAtPos(-2, 1);
    CorGUIListReplaceItem(-2, "a", 1);
    CorGUIListSetSelectedItem(-2, 1);
    CorGUIListSetSelectedItems(-2, selected, 2);
    CorGUIListDeselectAllItems(-2);
    CorGUIOptionMenuAppendItem(-2, "a");
    CorGUIOptionMenuDeleteAllItems(-2);
    CorGUIOptionMenuSet(-2, 1);
    CorGUIRadioBoxSetToggle(-2, 1);
    CorGUIMenuAddSeparator(-2);
    CorGUIMenuSetToggle(-2, TRUE);
    CorGUISetSensitivity(-2, FALSE);
    CorGUISetToolTip(-2, "a");
    EXPECT_EQ(host.calls().size(), 20U);
    EXPECT_EQ(host.calls().back(), "CorGUISetToolTip(-2, \"a\")");
}

} // namespace
} // namespace corvane::test
