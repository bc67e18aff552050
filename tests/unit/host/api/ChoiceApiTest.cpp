// Buttons, labels, option menus, radio boxes, toggles, and what all controls share.
#include "tests/unit/host/api/GuiTest.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const char* const letters[] = {"&a", "b", "c"};

class OptionMenuApiTest : public GuiTest {
protected:
    OptionMenuApiTest() {
        const char* const blank[] = {" "};
        menu = CorGUIOptionMenuAdd(kites, 0, 0, 900, 145, blank, 1, &option);
    }
    void fill(int count) const {
        CorGUIOptionMenuDeleteAllItems(menu);
        for (int number = 1; number <= count; ++number) {
            CorGUIOptionMenuAppendItem(menu, std::to_string(number).c_str());
        }
    }
    int menu;
};

TEST_F(OptionMenuApiTest, theFirstItemIsChosenAtFirst) {
    EXPECT_EQ(CorGUIOptionMenuGet(menu), 1);
    EXPECT_EQ(kitesDialog().optionMenu().chosenText(), " ");
    const int empty = CorGUIOptionMenuAdd(kites, 0, 0, 1, 1, nullptr, 3, nullptr);
    EXPECT_EQ(CorGUIOptionMenuGet(empty), 0);
    CorGUIOptionMenuAppendItem(empty, "x");
    EXPECT_EQ(CorGUIOptionMenuGet(empty), 1);
}

TEST_F(OptionMenuApiTest, refillingKeepsTheChosenPosition) {
    fill(3);
    CorGUIOptionMenuSet(menu, 3);
    fill(3);
    EXPECT_EQ(CorGUIOptionMenuGet(menu), 3);
    CorGUIOptionMenuDeleteAllItems(menu);
    EXPECT_EQ(CorGUIOptionMenuGet(menu), 0);
    CorGUIOptionMenuDeleteAllItems(menu);
    CorGUIOptionMenuAppendItem(menu, "x");
    EXPECT_EQ(CorGUIOptionMenuGet(menu), 1);
    CorGUIOptionMenuAppendItem(menu, "y");
    CorGUIOptionMenuAppendItem(menu, "z");
    EXPECT_EQ(CorGUIOptionMenuGet(menu), 3);
}

TEST_F(OptionMenuApiTest, aPositionThatIsGoneBecomesTheFirst) {
    fill(3);
    CorGUIOptionMenuSet(menu, 3);
    fill(2);
    EXPECT_EQ(CorGUIOptionMenuGet(menu), 1);
    fill(3);
    EXPECT_EQ(CorGUIOptionMenuGet(menu), 1);
}

TEST_F(OptionMenuApiTest, positionsOutsideOfTheMenuAreLeftAlone) {
    fill(3);
    CorGUIOptionMenuSet(menu, 2);
    for (const long position : {-1L, 0L, 4L}) {
        CorGUIOptionMenuSet(menu, position);
    }
    EXPECT_EQ(CorGUIOptionMenuGet(menu), 2);
}

TEST_F(OptionMenuApiTest, onlyTheUsersChoiceIsTold) {
    const MemoryOptionMenu shown = launchKites().optionMenu();
    fill(3);
    CorGUIOptionMenuSet(menu, 2);
    EXPECT_THAT(take(), IsEmpty());
    on("option", [this] { EXPECT_EQ(CorGUIOptionMenuGet(menu), 3); });
    shown.choose("3");
    EXPECT_THAT(take(), ElementsAre("option 3"));
    EXPECT_THROW(shown.choose(4), std::logic_error);
    host.session().controlActions().choose(menu, 4);
    EXPECT_THAT(take(), IsEmpty());
}

class RadioBoxApiTest : public GuiTest {
protected:
    RadioBoxApiTest() : box(CorGUIRadioBoxAdd(kites, 0, 0, 900, 600, letters, 3, &radio)) {}
    int box;
};

TEST_F(RadioBoxApiTest, theFirstItemIsOnAtFirst) {
    EXPECT_EQ(CorGUIRadioBoxGetToggle(box), 1);
    const int empty = CorGUIRadioBoxAdd(kites, 0, 0, 1, 1, letters, 0, nullptr);
    EXPECT_EQ(CorGUIRadioBoxGetToggle(empty), 0);
}

TEST_F(RadioBoxApiTest, oneOrNoneIsOn) {
    CorGUIRadioBoxSetToggle(box, 3);
    CorGUIRadioBoxSetToggle(box, 4);
    CorGUIRadioBoxSetToggle(box, -1);
    EXPECT_EQ(CorGUIRadioBoxGetToggle(box), 3);
    CorGUIRadioBoxSetToggle(box, 0);
    EXPECT_EQ(CorGUIRadioBoxGetToggle(box), 0);
}

TEST_F(RadioBoxApiTest, onlyTheUsersChoiceIsTold) {
    const MemoryRadioBox shown = launchKites().radioBox();
    CorGUIRadioBoxSetToggle(box, 3);
    EXPECT_THAT(take(), IsEmpty());
    on("radio", [this] { EXPECT_EQ(CorGUIRadioBoxGetToggle(box), 2); });
    shown.choose("b");
    EXPECT_THAT(take(), ElementsAre("radio 2"));
}

class ToggleApiTest : public GuiTest {
protected:
    ToggleApiTest() : handle(CorGUIToggleAdd(kites, 0, 0, 900, 145, "&Tail", &toggle)) {}
    int handle;
};

TEST_F(ToggleApiTest, itIsOffAtFirst) {
    EXPECT_EQ(CorGUIToggleGet(handle), FALSE);
}

TEST_F(ToggleApiTest, onlyTheUserIsTold) {
    const MemoryToggle shown = launchKites().toggle("Tail");
    CorGUIToggleSet(handle, TRUE);
    CorGUIToggleSet(handle, FALSE);
    EXPECT_THAT(take(), IsEmpty());
    shown.click();
    shown.click();
    EXPECT_THAT(take(), ElementsAre("toggle 1", "toggle 0"));
}

class ControlApiTest : public GuiTest {};

TEST_F(ControlApiTest, controlsStandWhereTheyWereAdded) {
    CorGUIButtonAdd(kites, 10, 20, 300, 145, "&Fly  ", &press);
    CorGUIFrameAdd(kites, 11, 21, 31, 41, "Box");
    const host::Box button = kitesDialog().button("Fly").control().box;
    EXPECT_THAT((std::vector{button.x, button.y, button.width, button.height}),
                ElementsAre(10, 20, 300, 145));
    const host::Box box = kitesDialog().groupBox("Box").control().box;
    EXPECT_THAT((std::vector{box.x, box.y, box.width, box.height}), ElementsAre(11, 21, 31, 41));
    EXPECT_EQ(kitesDialog().button("Fly").label(), "&Fly  ");
    EXPECT_EQ(kitesDialog().controlCount(), 2U);
}

TEST_F(ControlApiTest, aLabelChangesItsText) {
    const int label = CorGUILabelAdd(kites, 10, 20, "Length:");
    CorGUILabelSetText(label, "Height:");
    EXPECT_EQ(kitesDialog().label(label).label(), "Height:");
    EXPECT_EQ(host.gui().changes(label, host::ControlChange::Text), 1U);
}

TEST_F(ControlApiTest, eachControlCanBeDimmed) {
    const int label = CorGUILabelAdd(kites, 0, 0, "Length:");
    const int button = CorGUIButtonAdd(kites, 0, 0, 1, 1, "Fly", &press);
    const int field = addField(kites);
    const MemoryDialog dialog = launchKites();
    for (const int control : {label, button, field}) {
        CorGUISetSensitivity(control, FALSE);
        EXPECT_EQ(host.gui().changes(control, host::ControlChange::Sensitivity), 1U);
    }
    EXPECT_FALSE(dialog.label(label).isSensitive());
    EXPECT_THROW(dialog.button("Fly").click(), std::logic_error);
    EXPECT_THROW(dialog.field().type("red"), std::logic_error);
    host.session().controlActions().press(button);
    EXPECT_THAT(take(), IsEmpty());
    CorGUISetSensitivity(button, TRUE);
    dialog.button("Fly").click();
    EXPECT_THAT(take(), ElementsAre("press"));
}

TEST_F(ControlApiTest, aDimmedDialogDimsWhatIsInIt) {
    CorGUIButtonAdd(kites, 0, 0, 1, 1, "Fly", &press);
    const MemoryDialog dialog = launchKites();
    CorGUISetSensitivity(kites, FALSE);
    EXPECT_FALSE(dialog.button("Fly").isSensitive());
}

TEST_F(ControlApiTest, toolTipsComeAndGo) {
    const int button = CorGUIButtonAdd(kites, 0, 0, 1, 1, "Fly", &press);
    CorGUISetToolTip(button, "Let <it> go");
    EXPECT_EQ(kitesDialog().button("Fly").toolTip(), "Let <it> go");
    CorGUISetToolTip(button, nullptr);
    EXPECT_EQ(kitesDialog().button("Fly").toolTip(), "");
}

TEST_F(ControlApiTest, controlsOfAnotherKindAreLeftAlone) {
    host.expectMisuse("no such control");
    const int button = CorGUIButtonAdd(kites, 0, 0, 1, 1, "Fly", &press);
    CorGUITextFieldSetString(button, "x");
    CorGUIListAppendItem(button, "x");
    CorGUIDialogLaunch(button);
    CorGUIToggleSet(button, TRUE);
    CorGUIMenuSetToggle(button, TRUE);
    EXPECT_EQ(CorGUIToggleGet(button), FALSE);
    EXPECT_EQ(CorGUIOptionMenuGet(button), 0);
    EXPECT_EQ(CorGUIRadioBoxGetToggle(button), 0);
    EXPECT_EQ(CorGUIListGetItemCount(button), 0);
    EXPECT_EQ(CorGUIDialogIsUp(button), FALSE);
    EXPECT_EQ(CorGUIMenuAdd(button, "x"), COR_HANDLE_NOT_CREATED);
    EXPECT_EQ(host.misuse().size(), 11U);
    EXPECT_EQ(kitesDialog().button("Fly").label(), "Fly");
}

TEST_F(ControlApiTest, aHandleThatWasNeverSetIsNothingToComplainOf) {
    CorGUISetSensitivity(COR_HANDLE_NOT_CREATED, FALSE);
    EXPECT_EQ(CorGUIDialogIsUp(COR_HANDLE_NOT_CREATED), FALSE);
    EXPECT_THAT(host.misuse(), IsEmpty());
}

TEST_F(ControlApiTest, theUserOfTheTestsFindsControlsByTheLabelBesideThem) {
    CorGUILabelAdd(kites, 207, 1595, "View Name:");
    CorGUILabelAdd(kites, 189, 1806, "Frame Count:");
    const int name = CorGUITextFieldAdd(kites, 1847, 1645, 2711, 145, &text);
    const int count = CorGUITextFieldAdd(kites, 1847, 1856, 2711, 145, &text);
    EXPECT_EQ(kitesDialog().field("View Name:").handle(), name);
    EXPECT_EQ(kitesDialog().field("Frame Count:").handle(), count);
    EXPECT_THROW(kitesDialog().field(), std::logic_error);
    EXPECT_THROW(kitesDialog().field("Length:"), std::logic_error);
    EXPECT_THROW(kitesDialog().button("Fly"), std::logic_error);
    EXPECT_THROW(host.gui().dialog("Pins"), std::logic_error);
}

} // namespace
} // namespace corvane::test
