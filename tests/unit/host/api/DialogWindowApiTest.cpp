// Dialogs of add-ons: launching, dropping, closing, and what keeps the user from them.
#include "tests/unit/host/api/GuiTest.h"

#include <stdexcept>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DialogWindowApiTest : public GuiTest {};

TEST_F(DialogWindowApiTest, aNewDialogIsHidden) {
    EXPECT_EQ(CorGUIDialogIsUp(kites), FALSE);
    EXPECT_THAT(host.gui().windowCalls(), IsEmpty());
    const host::Dialog& dialog = kitesDialog().control();
    EXPECT_EQ(dialog.label, "Kites");
    EXPECT_EQ(dialog.width, 4000);
    EXPECT_EQ(dialog.height, 2000);
    EXPECT_FALSE(dialog.isModal);
}

TEST_F(DialogWindowApiTest, aDialogNeedsAParent) {
    host.expectMisuse("no such control");
    EXPECT_EQ(CorGUIDialogCreateModeless(77, 1, 1, "Lost", nullptr, nullptr, nullptr),
              COR_HANDLE_NOT_CREATED);
    EXPECT_EQ(
        CorGUIDialogCreateModeless(COR_HANDLE_NOT_CREATED, 1, 1, "Lost", nullptr, nullptr, nullptr),
        COR_HANDLE_NOT_CREATED);
    const int button = CorGUIButtonAdd(kites, 0, 0, 1, 1, "a", nullptr);
    EXPECT_EQ(CorGUIDialogCreateModeless(button, 1, 1, "Lost", nullptr, nullptr, nullptr),
              COR_HANDLE_NOT_CREATED);
    EXPECT_FALSE(host.gui().hasDialog("Lost"));
    EXPECT_EQ(CorGUIButtonAdd(button, 0, 0, 1, 1, "a", nullptr), COR_HANDLE_NOT_CREATED);
    EXPECT_GE(
        CorGUIDialogCreateModal(kites, 1, 1, "Child", nullptr, nullptr, nullptr, nullptr, nullptr),
        0);
}

TEST_F(DialogWindowApiTest, initComesAtEachLaunchWhenTheDialogIsShown) {
    const int field = addField(kites);
    on("init", [&] {
        EXPECT_THAT(host.gui().windowCalls().back(), "show Kites");
        EXPECT_EQ(CorGUIDialogIsUp(kites), TRUE);
        CorGUITextFieldSetString(field, "ready");
    });
    CorGUIDialogLaunch(kites);
    EXPECT_THAT(take(), ElementsAre("init"));
    EXPECT_EQ(kitesDialog().field().text(), "ready");
    CorGUIDialogDrop(kites);
    CorGUIDialogLaunch(kites);
    EXPECT_THAT(take(), ElementsAre("init"));
}

TEST_F(DialogWindowApiTest, launchingWhatIsUpRaisesIt) {
    launchKites();
    CorGUIDialogLaunch(kites);
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_THAT(host.gui().windowCalls(), ElementsAre("show Kites", "raise Kites"));
}

TEST_F(DialogWindowApiTest, droppingOnlyHides) {
    launchKites();
    launchKnots();
    CorGUIDialogDrop(knots);
    CorGUIDialogDrop(kites);
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_EQ(CorGUIDialogIsUp(kites), FALSE);
    EXPECT_THAT(host.gui().dialogsUp(), IsEmpty());
}

TEST_F(DialogWindowApiTest, droppingWhatIsHiddenDoesNothing) {
    CorGUIDialogDrop(kites);
    CorGUIDialogDrop(COR_HANDLE_NOT_CREATED);
    EXPECT_THAT(host.gui().windowCalls(), IsEmpty());
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(DialogWindowApiTest, closingAModelessDialogTellsTheAddOnAndLeavesItUp) {
    const MemoryDialog dialog = launchKites();
    dialog.closeByWindow();
    dialog.pressEscape();
    EXPECT_THAT(take(), ElementsAre("close", "close"));
    EXPECT_TRUE(dialog.isUp());
}

TEST_F(DialogWindowApiTest, theCloseCallbackMayDrop) {
    const MemoryDialog dialog = launchKites();
    on("close", [&] { CorGUIDialogDrop(kites); });
    dialog.pressEscape();
    EXPECT_THAT(take(), ElementsAre("close"));
    EXPECT_FALSE(dialog.isUp());
}

TEST_F(DialogWindowApiTest, closingAModalDialogIsCancel) {
    const MemoryDialog dialog = launchKnots();
    dialog.closeByWindow();
    dialog.pressEscape();
    dialog.cancel();
    EXPECT_THAT(take(), ElementsAre("cancel", "cancel", "cancel"));
    EXPECT_TRUE(dialog.isUp());
}

TEST_F(DialogWindowApiTest, okAndApplyLeaveTheDialogUp) {
    const MemoryDialog dialog = launchKnots();
    dialog.ok();
    dialog.apply();
    dialog.pressReturn();
    EXPECT_THAT(take(), ElementsAre("ok", "apply", "ok"));
    EXPECT_TRUE(dialog.isUp());
}

TEST_F(DialogWindowApiTest, buttonsThatTheAddOnDoesNotWantAreNotThere) {
    const int bare = CorGUIDialogCreateModal(COR_HANDLE_MAIN_WINDOW, 1, 1, "Bare", nullptr, nullptr,
                                             nullptr, nullptr, nullptr);
    CorGUIDialogLaunch(bare);
    const MemoryDialog dialog = host.gui().dialog(bare);
    EXPECT_THROW(dialog.apply(), std::logic_error);
    EXPECT_THROW(dialog.help(), std::logic_error);
    dialog.ok();
    dialog.cancel();
    EXPECT_TRUE(dialog.isUp());
}

TEST_F(DialogWindowApiTest, helpIsTold) {
    launchKites().help();
    EXPECT_THAT(take(), ElementsAre("help"));
}

TEST_F(DialogWindowApiTest, returnIsNothingInAModelessDialog) {
    launchKites().pressReturn();
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(DialogWindowApiTest, aModalDialogBlocksTheOthers) {
    CorGUIButtonAdd(kites, 0, 0, 1, 1, "Fly", &press);
    const MemoryDialog behind = launchKites();
    launchKnots();
    EXPECT_THROW(behind.button("Fly").click(), std::logic_error);
    EXPECT_THROW(behind.pressEscape(), std::logic_error);
    host.session().controlActions().dismiss(kites);
    EXPECT_THAT(take(), IsEmpty());
    CorGUIDialogDrop(knots);
    behind.button("Fly").click();
    EXPECT_THAT(take(), ElementsAre("press"));
}

TEST_F(DialogWindowApiTest, aModalDialogLeavesItsOwnChildrenUsable) {
    const int child = CorGUIDialogCreateModeless(knots, 1, 1, "Child", nullptr, &close, nullptr);
    launchKnots();
    CorGUIDialogLaunch(child);
    host.gui().dialog("Child").pressEscape();
    EXPECT_THAT(take(), ElementsAre("close"));
}

TEST_F(DialogWindowApiTest, aHiddenDialogCannotBeUsed) {
    CorGUIButtonAdd(kites, 0, 0, 1, 1, "Fly", &press);
    EXPECT_THROW(kitesDialog().button("Fly").click(), std::logic_error);
    EXPECT_THROW(kitesDialog().pressEscape(), std::logic_error);
}

TEST_F(DialogWindowApiTest, callbacksMayBeNull) {
    const int bare = CorGUIDialogCreateModeless(COR_HANDLE_MAIN_WINDOW, 1, 1, nullptr, nullptr,
                                                nullptr, nullptr);
    CorGUIButtonAdd(bare, 0, 0, 1, 1, nullptr, nullptr);
    CorGUIDialogLaunch(bare);
    host.gui().dialog("").button("").click();
    host.gui().dialog("").closeByWindow();
    EXPECT_EQ(CorGUIDialogIsUp(bare), TRUE);
}

TEST_F(DialogWindowApiTest, anExceptionOfACallbackIsShownOnceAndTheHostGoesOn) {
    CorGUIButtonAdd(kites, 0, 0, 1, 1, "Fly", &press);
    const MemoryDialog dialog = launchKites();
    on("press", [] {
        CorUtilLockStart(nullptr);
        CorUtilDrawGraphics(FALSE);
        throw std::runtime_error("no wind");
    });
    dialog.button("Fly").click();
    EXPECT_THAT(host.prompts().shown(ShownDialog::Kind::Error), ElementsAre("no wind"));
    on("press", [] { throw 5; });
    dialog.button("Fly").click();
    EXPECT_THAT(host.prompts().shown(ShownDialog::Kind::Error).back(),
                ::testing::HasSubstr("unknown reason"));
}

TEST_F(DialogWindowApiTest, anExceptionOfInitLeavesTheDialogUp) {
    on("init", [] { throw std::runtime_error("no wind"); });
    CorGUIDialogLaunch(kites);
    EXPECT_TRUE(kitesDialog().isUp());
    EXPECT_THAT(host.prompts().shown(ShownDialog::Kind::Error), ElementsAre("no wind"));
}

/// The add-on takes a lock when it launches the dialog, and gives it back when the dialog goes.
class LockedDialogApiTest : public GuiTest {
protected:
    LockedDialogApiTest() {
        CorGUIButtonAdd(kites, 0, 0, 1, 1, "Tie", &press);
        launchKites();
        on("press", [this] {
            CorUtilLockStart(nullptr);
            CorGUIDialogLaunch(knots);
        });
        on("cancel", [this] { dropAndUnlock(); });
        kitesDialog().button("Tie").click();
    }
    void dropAndUnlock() const {
        CorGUIDialogDrop(knots);
        CorUtilLockFinish(nullptr);
    }
};

TEST_F(LockedDialogApiTest, aModalDialogMayHoldALockForItsLife) {
    EXPECT_EQ(host.session().locks().depth(), 1);
    knotsDialog().cancel();
    EXPECT_EQ(host.session().locks().depth(), 0);
}

TEST_F(LockedDialogApiTest, aLockThatWasGivenBackIsNotTakenAgainAfterAnException) {
    on("ok", [this] {
        dropAndUnlock();
        throw std::runtime_error("no string");
    });
    knotsDialog().ok();
    EXPECT_EQ(host.session().locks().depth(), 0);
    EXPECT_THAT(host.prompts().shown(ShownDialog::Kind::Error), ElementsAre("no string"));
}

TEST_F(LockedDialogApiTest, aLockWithoutADialogIsStillMisuse) {
    host.expectMisuse("the dialog \"Knots\" of unit_host_api: locks are not balanced");
    on("apply", [] { CorUtilLockStart(nullptr); });
    knotsDialog().apply();
    EXPECT_EQ(host.session().locks().depth(), 1) << "that of the dialog";
    knotsDialog().cancel();
}

TEST_F(DialogWindowApiTest, theEndOfTheHostTakesTheDialogsAway) {
    launchKites();
    const int button = CorGUIButtonAdd(kites, 0, 0, 1, 1, "Fly", &press);
    host.session().quit();
    EXPECT_TRUE(host.gui().isClosed());
    CorGUISetSensitivity(button, FALSE);
    EXPECT_EQ(CorGUIDialogIsUp(kites), FALSE);
    EXPECT_EQ(
        CorGUIDialogCreateModeless(COR_HANDLE_MAIN_WINDOW, 1, 1, "Late", nullptr, nullptr, nullptr),
        COR_HANDLE_NOT_CREATED);
    EXPECT_THAT(take(), IsEmpty());
}

} // namespace
} // namespace corvane::test
