// Menu bars of dialogs, and options in the menus of the main window.
#include "tests/unit/host/api/GuiTest.h"

#include <stdexcept>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MenuBarApiTest : public GuiTest {
protected:
    MenuBarApiTest()
        : bar(CorGUIMenuBarAdd(kites)),
          menu(CorGUIMenuAdd(bar, "&Sky")),
          check(CorGUIMenuAddToggle(menu, "Blue && &clear", "What color", &menuToggle)) {
        CorGUIMenuAddSeparator(menu);
        wind = CorGUIMenuAddItem(menu, "&Wind...", nullptr, &item);
    }

    int bar;
    int menu;
    int check;
    int wind = COR_HANDLE_NOT_CREATED;
};

TEST_F(MenuBarApiTest, entriesStandInTheOrderOfTheirMaking) {
    const int sub = CorGUIMenuAdd(menu, "Stars");
    CorGUIMenuAddItem(sub, "Sirius", nullptr, &item);
    EXPECT_THAT(kitesDialog().menus(), ElementsAre("&Sky"));
    const MemoryMenu shown = kitesDialog().menu("Sky");
    EXPECT_THAT(shown.entries(), ElementsAre("Blue && &clear", "-", "&Wind...", "Stars"));
    EXPECT_THAT(shown.menu("Stars").entries(), ElementsAre("Sirius"));
    EXPECT_EQ(shown.item("Wind...").help(), "");
    EXPECT_EQ(shown.toggle("Blue clear").help(), "What color");
    EXPECT_THROW(shown.item("Moon"), std::logic_error);
}

TEST_F(MenuBarApiTest, aDialogHasOneMenuBar) {
    EXPECT_EQ(CorGUIMenuBarAdd(kites), bar);
    EXPECT_NE(CorGUIMenuBarAdd(knots), bar);
}

TEST_F(MenuBarApiTest, itemsAreTold) {
    launchKites().menu("Sky").item("Wind...").choose();
    EXPECT_THAT(take(), ElementsAre("item"));
}

TEST_F(MenuBarApiTest, settingATogglesMarkTellsNobody) {
    const MemoryMenuToggle shown = launchKites().menu("Sky").toggle("Blue clear");
    EXPECT_FALSE(shown.isOn());
    CorGUIMenuSetToggle(check, TRUE);
    EXPECT_TRUE(shown.isOn());
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_EQ(host.gui().changes(check, host::ControlChange::State), 1U);
}

TEST_F(MenuBarApiTest, aToggleThatTheUserChoosesChangesAndIsTold) {
    const MemoryMenuToggle shown = launchKites().menu("Sky").toggle("Blue clear");
    shown.choose();
    EXPECT_TRUE(shown.isOn());
    shown.choose();
    EXPECT_FALSE(shown.isOn());
    EXPECT_THAT(take(), ElementsAre("menuToggle 1", "menuToggle 0"));
}

TEST_F(MenuBarApiTest, aCallbackMaySetTheMarkOfItsOwnToggle) {
    const MemoryMenuToggle shown = launchKites().menu("Sky").toggle("Blue clear");
    on("menuToggle", [this] { CorGUIMenuSetToggle(check, FALSE); });
    shown.choose();
    EXPECT_FALSE(shown.isOn());
    EXPECT_THAT(take(), ElementsAre("menuToggle 1"));
}

TEST_F(MenuBarApiTest, aDimmedMenuDimsItsEntries) {
    const MemoryMenu shown = launchKites().menu("Sky");
    CorGUISetSensitivity(menu, FALSE);
    EXPECT_THROW(shown.item("Wind...").choose(), std::logic_error);
    CorGUISetSensitivity(menu, TRUE);
    CorGUISetSensitivity(wind, FALSE);
    EXPECT_THROW(shown.item("Wind...").choose(), std::logic_error);
    host.session().controlActions().trigger(wind);
    EXPECT_THAT(take(), IsEmpty());
}

class MenuApiTest : public GuiTest {};

TEST_F(MenuApiTest, anOptionStandsInItsMenu) {
    EXPECT_EQ(CorUtilMenuAddOption("&Animate", "&Kites...", 1, &press), TRUE);
    EXPECT_EQ(CorUtilMenuAddOption("Animate", "Knots", 7, &press), TRUE);
    EXPECT_THAT(host.mainMenu().menus(), ElementsAre("Animate"));
    EXPECT_THAT(host.mainMenu().options("Animate"), ElementsAre("&Kites...", "Knots"));
    EXPECT_TRUE(host.mainMenu().isSensitive("Animate", "Knots"));
    host.mainMenu().choose("Animate", "&Kites...");
    EXPECT_THAT(take(), ElementsAre("press"));
}

TEST_F(MenuApiTest, anOptionIsCalledWithoutALock) {
    CorUtilMenuAddOption("Animate", "Kites", 1, &press);
    on("press", [this] { EXPECT_EQ(host.session().locks().depth(), 0); });
    host.mainMenu().choose("Animate", "Kites");
    EXPECT_THAT(take(), ElementsAre("press"));
}

TEST_F(MenuApiTest, anOptionIsDimmedByTheLabelThatItWasAddedWith) {
    CorUtilMenuAddOption("Animate", "&Kites...", 1, &press);
    EXPECT_EQ(CorUtilMenuSetSensitivity("&Animate", "&Kites...", FALSE), TRUE);
    EXPECT_FALSE(host.mainMenu().isSensitive("Animate", "&Kites..."));
    EXPECT_THROW(host.mainMenu().choose("Animate", "&Kites..."), std::logic_error);
    EXPECT_EQ(CorUtilMenuSetSensitivity("Animate", "Kites...", TRUE), FALSE);
    EXPECT_EQ(CorUtilMenuSetSensitivity("View", "&Kites...", TRUE), FALSE);
    EXPECT_FALSE(host.mainMenu().isSensitive("Animate", "&Kites..."));
    EXPECT_EQ(host.mainMenu().changes(), 1);
}

TEST_F(MenuApiTest, anExceptionIsShown) {
    CorUtilMenuAddOption("Animate", "Kites", 1, &press);
    on("press", [] { throw std::runtime_error("no wind"); });
    host.mainMenu().choose("Animate", "Kites");
    EXPECT_THAT(host.prompts().shown(ShownDialog::Kind::Error), ElementsAre("no wind"));
}

TEST_F(MenuApiTest, theEndOfTheHostTakesTheOptionsAway) {
    CorUtilMenuAddOption("Animate", "Kites", 1, &press);
    host.session().quit();
    EXPECT_TRUE(host.mainMenu().isClosed());
    EXPECT_EQ(CorUtilMenuSetSensitivity("Animate", "Kites", TRUE), FALSE);
    EXPECT_EQ(CorUtilMenuAddOption("Animate", "Knots", 1, &press), FALSE);
}

} // namespace
} // namespace corvane::test
