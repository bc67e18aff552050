// Text fields and spin fields: when a text is committed, and what waits for it.
#include "tests/unit/host/api/GuiTest.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TextFieldApiTest : public GuiTest {
protected:
    TextFieldApiTest() : field(addField(kites)), knotsField(addField(knots)) {
        CorGUIButtonAdd(kites, 0, 0, 1, 1, "Fly", &press);
    }
    void refuse() {
        textAnswer = 0;
        on("text", [this] { CorGUITextFieldSetString(field, "old"); });
    }

    int field;
    int knotsField;
};

TEST_F(TextFieldApiTest, settingTheTextTellsNobody) {
    const MemoryDialog dialog = launchKites();
    CorGUITextFieldSetString(field, "red");
    dialog.field().commit();
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_EQ(dialog.field().text(), "red");
    CorGUITextFieldSetString(field, nullptr);
    EXPECT_EQ(dialog.field().text(), "");
}

TEST_F(TextFieldApiTest, aTextIsToldWhenItIsCommittedAndNotBefore) {
    const MemoryField typed = launchKites().field();
    typed.type("r");
    typed.type("re");
    EXPECT_THAT(take(), IsEmpty());
    typed.commit();
    EXPECT_THAT(take(), ElementsAre("text re"));
    typed.commit();
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(TextFieldApiTest, returnCommitsAndIsNothingElseInAModelessDialog) {
    const MemoryField typed = launchKites().field();
    typed.type("red");
    typed.pressReturn();
    typed.pressReturn();
    EXPECT_THAT(take(), ElementsAre("text red"));
}

TEST_F(TextFieldApiTest, aTextThatIsTheSameAsBeforeIsNotTold) {
    CorGUITextFieldSetString(field, "red");
    const MemoryField typed = launchKites().field();
    typed.type("green");
    typed.type("red");
    typed.commit();
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(TextFieldApiTest, anErrorBoxThatTakesTheFocusTellsNothingTwice) {
    const MemoryField typed = launchKites().field();
    on("text", [&] { typed.commit(); });
    typed.type("red");
    typed.commit();
    EXPECT_THAT(take(), ElementsAre("text red"));
}

TEST_F(TextFieldApiTest, aTextThatIsSetWhileTheUserTypesReplacesIt) {
    const MemoryField typed = launchKites().field();
    typed.type("re");
    CorGUITextFieldSetString(field, "blue");
    typed.commit();
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_EQ(typed.text(), "blue");
}

TEST_F(TextFieldApiTest, aTextIsCommittedBeforeAButton) {
    const MemoryDialog dialog = launchKites();
    dialog.field().type("red");
    dialog.button("Fly").click();
    EXPECT_THAT(take(), ElementsAre("text red", "press"));
}

TEST_F(TextFieldApiTest, aRefusedTextKeepsTheButtonFromBeingTold) {
    const MemoryDialog dialog = launchKites();
    refuse();
    dialog.field().type("red");
    dialog.button("Fly").click();
    EXPECT_THAT(take(), ElementsAre("text red"));
    EXPECT_EQ(dialog.field().text(), "old");
    dialog.button("Fly").click();
    EXPECT_THAT(take(), ElementsAre("press"));
}

TEST_F(TextFieldApiTest, aThrowingCallbackRefuses) {
    const MemoryDialog dialog = launchKites();
    on("text", [] { throw std::runtime_error("no such color"); });
    dialog.field().type("red");
    dialog.button("Fly").click();
    EXPECT_THAT(take(), ElementsAre("text red"));
    EXPECT_THAT(host.prompts().shown(ShownDialog::Kind::Error), ElementsAre("no such color"));
}

TEST_F(TextFieldApiTest, aTextIsCommittedBeforeEveryOtherControl) {
    const char* const items[] = {"a", "b"};
    const int listHandle = CorGUIListAdd(kites, 0, 0, 1, 1, TRUE, &list);
    CorGUIListAppendItem(listHandle, "one");
    CorGUIOptionMenuAdd(kites, 0, 0, 1, 1, items, 2, &option);
    CorGUIRadioBoxAdd(kites, 0, 0, 1, 1, items, 2, &radio);
    CorGUIToggleAdd(kites, 0, 0, 1, 1, "T", &toggle);
    const int menu = CorGUIMenuAdd(CorGUIMenuBarAdd(kites), "M");
    CorGUIMenuAddItem(menu, "I", nullptr, &item);
    CorGUIMenuAddToggle(menu, "C", nullptr, &menuToggle);
    const MemoryDialog dialog = launchKites();
    const std::vector<std::pair<std::string, std::function<void()>>> actions = {
        {"list 1", [&] { dialog.list().select({1}); }},
        {"option 2", [&] { dialog.optionMenu().choose(2); }},
        {"radio 2", [&] { dialog.radioBox().choose(2); }},
        {"toggle 1", [&] { dialog.toggle("T").click(); }},
        {"item", [&] { dialog.menu("M").item("I").choose(); }},
        {"menuToggle 1", [&] { dialog.menu("M").toggle("C").choose(); }},
        {"help", [&] { dialog.help(); }},
        {"close", [&] { dialog.pressEscape(); }},
    };
    for (const auto& [expected, action] : actions) {
        const std::string typed = "before " + expected;
        dialog.field().type(typed);
        action();
        EXPECT_THAT(take(), ElementsAre("text " + typed, expected));
    }
}

TEST_F(TextFieldApiTest, aRefusedTextLeavesOtherControlsAsTheyWere) {
    const char* const items[] = {"a", "b"};
    const int listHandle = CorGUIListAdd(kites, 0, 0, 1, 1, TRUE, &list);
    CorGUIListAppendItem(listHandle, "one");
    const int optionMenu = CorGUIOptionMenuAdd(kites, 0, 0, 1, 1, items, 2, &option);
    const int radioBox = CorGUIRadioBoxAdd(kites, 0, 0, 1, 1, items, 2, &radio);
    const int toggleHandle = CorGUIToggleAdd(kites, 0, 0, 1, 1, "T", &toggle);
    const int menu = CorGUIMenuAdd(CorGUIMenuBarAdd(kites), "M");
    const int check = CorGUIMenuAddToggle(menu, "C", nullptr, &menuToggle);
    const MemoryDialog dialog = launchKites();
    refuse();
    const std::vector<std::function<void()>> actions = {
        [&] { dialog.list().select({1}); },
        [&] { dialog.optionMenu().choose(2); },
        [&] { dialog.radioBox().choose(2); },
        [&] { dialog.toggle("T").click(); },
        [&] { dialog.menu("M").toggle("C").choose(); },
    };
    for (const auto& action : actions) {
        dialog.field().type("red");
        action();
        EXPECT_THAT(take(), ElementsAre("text red"));
    }
    EXPECT_THAT(dialog.list().selection(), IsEmpty());
    EXPECT_EQ(CorGUIOptionMenuGet(optionMenu), 1);
    EXPECT_EQ(CorGUIRadioBoxGetToggle(radioBox), 1);
    EXPECT_EQ(CorGUIToggleGet(toggleHandle), FALSE);
    EXPECT_FALSE(dialog.menu("M").toggle("C").isOn());
    EXPECT_EQ(host.gui().changes(listHandle, host::ControlChange::Selection), 1U);
    EXPECT_EQ(host.gui().changes(optionMenu, host::ControlChange::Choice), 1U);
    EXPECT_EQ(host.gui().changes(radioBox, host::ControlChange::Choice), 1U);
    EXPECT_EQ(host.gui().changes(toggleHandle, host::ControlChange::State), 1U);
    EXPECT_EQ(host.gui().changes(check, host::ControlChange::State), 1U);
}

TEST_F(TextFieldApiTest, theSelectionChangesAfterTheTextOfTheOldOneWasCommitted) {
    const int listHandle = CorGUIListAdd(kites, 0, 0, 1, 1, TRUE, &list);
    CorGUIListAppendItem(listHandle, "one");
    CorGUIListAppendItem(listHandle, "two");
    CorGUIListSetSelectedItem(listHandle, 1);
    const MemoryDialog dialog = launchKites();
    std::vector<long> selectionAtCommit;
    on("text", [&] { selectionAtCommit = dialog.list().selection(); });
    dialog.field().type("red");
    dialog.list().select({2});
    EXPECT_THAT(selectionAtCommit, ElementsAre(1));
    EXPECT_THAT(dialog.list().selection(), ElementsAre(2));
}

TEST_F(TextFieldApiTest, aTextThatDimsTheButtonKeepsItFromBeingTold) {
    const MemoryDialog dialog = launchKites();
    const int button = dialog.button("Fly").handle();
    on("text", [&] { CorGUISetSensitivity(button, FALSE); });
    dialog.field().type("red");
    dialog.button("Fly").click();
    EXPECT_THAT(take(), ElementsAre("text red"));
}

TEST_F(TextFieldApiTest, goingToAnotherFieldCommitsTheFirst) {
    const int other = addField(kites);
    const MemoryDialog dialog = launchKites();
    dialog.field(field).type("red");
    dialog.field(other).type("blue");
    EXPECT_THAT(take(), ElementsAre("text red"));
    dialog.field(other).commit();
    EXPECT_THAT(take(), ElementsAre("text blue"));
}

TEST_F(TextFieldApiTest, theFirstReturnCommitsAndTheSecondIsOk) {
    const MemoryField typed = launchKnots().field();
    typed.type("bowline");
    typed.pressReturn();
    EXPECT_THAT(take(), ElementsAre("text bowline"));
    typed.pressReturn();
    EXPECT_THAT(take(), ElementsAre("ok"));
}

TEST_F(TextFieldApiTest, okCommitsFirstAndNotAtAllWhenRefused) {
    const MemoryDialog dialog = launchKnots();
    dialog.field().type("bowline");
    dialog.ok();
    EXPECT_THAT(take(), ElementsAre("text bowline", "ok"));
    textAnswer = 0;
    dialog.field().type("granny");
    dialog.ok();
    EXPECT_THAT(take(), ElementsAre("text granny"));
    dialog.field().type("thief");
    dialog.cancel();
    EXPECT_THAT(take(), ElementsAre("text thief"));
    dialog.cancel();
    EXPECT_THAT(take(), ElementsAre("cancel"));
}

TEST_F(TextFieldApiTest, aDialogForgetsWhatWasTypedWhenItIsDropped) {
    CorGUITextFieldSetString(field, "red");
    launchKites().field().type("gre");
    CorGUIDialogDrop(kites);
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_EQ(kitesDialog().field().text(), "red");
    CorGUIDialogLaunch(kites);
    kitesDialog().button("Fly").click();
    EXPECT_THAT(take(), ElementsAre("init", "press"));
}

TEST_F(TextFieldApiTest, aFieldThatIsDimmedForgetsWhatWasTyped) {
    CorGUITextFieldSetString(field, "red");
    const MemoryDialog dialog = launchKites();
    dialog.field().type("gre");
    CorGUISetSensitivity(field, FALSE);
    EXPECT_EQ(dialog.field().text(), "red");
    EXPECT_THROW(dialog.field().type("blue"), std::logic_error);
    dialog.button("Fly").click();
    EXPECT_THAT(take(), ElementsAre("press"));
}

TEST_F(TextFieldApiTest, anotherDialogsTextWaits) {
    const int pins =
        CorGUIDialogCreateModeless(COR_HANDLE_MAIN_WINDOW, 1, 1, "Pins", nullptr, nullptr, nullptr);
    CorGUIButtonAdd(pins, 0, 0, 1, 1, "Pin", &press);
    const MemoryDialog dialog = launchKites();
    CorGUIDialogLaunch(pins);
    dialog.field().type("red");
    host.gui().dialog("Pins").button("Pin").click();
    EXPECT_THAT(take(), ElementsAre("press"));
}

class SpinFieldApiTest : public GuiTest {
protected:
    SpinFieldApiTest() : field(CorGUISpinTextFieldAdd(kites, 0, 0, 9, 9, &text, &up, &down)) {}
    int field;
};

TEST_F(SpinFieldApiTest, arrowsOnlyCall) {
    CorGUITextFieldSetString(field, "5");
    const MemorySpinField spin = launchKites().spinField();
    spin.up();
    spin.down();
    EXPECT_THAT(take(), ElementsAre("up", "down"));
    EXPECT_EQ(spin.text(), "5");
}

TEST_F(SpinFieldApiTest, arrowsCommitFirst) {
    const MemorySpinField spin = launchKites().spinField();
    on("up", [this] { CorGUITextFieldSetString(field, "8"); });
    spin.type("7");
    spin.up();
    EXPECT_THAT(take(), ElementsAre("text 7", "up"));
    EXPECT_EQ(spin.text(), "8");
    textAnswer = 0;
    spin.type("x");
    spin.down();
    EXPECT_THAT(take(), ElementsAre("text x"));
}

} // namespace
} // namespace corvane::test
