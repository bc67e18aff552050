// Windows of dialogs: launching, dropping, closing, Return and Esc.
#include "host/gui/widgets/DialogWindow.h"

#include "tests/unit/host/gui/widgets/WidgetsTest.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DialogWindowTest : public WidgetsTest {
protected:
    QPushButton* standard(int dialog, QDialogButtonBox::StandardButton kind) const {
        return widgets.widget(dialog)->findChild<QDialogButtonBox*>()->button(kind);
    }
};

TEST_F(DialogWindowTest, launchingShowsTheWindowBeforeInitAndReturnsAtOnce) {
    on("init", [this] { EXPECT_TRUE(widgets.widget(knots)->isVisible()); });
    CorGUIDialogLaunch(knots);
    EXPECT_THAT(take(), ElementsAre("init"));
    EXPECT_EQ(widgets.widget(knots)->windowTitle(), QStringLiteral("Knots"));
    EXPECT_EQ(widgets.widget(knots)->windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(widgets.widget(kites)->windowModality(), Qt::NonModal);
}

TEST_F(DialogWindowTest, droppingHidesAndTellsNobody) {
    launch(knots);
    CorGUIDialogDrop(knots);
    settle();
    EXPECT_FALSE(widgets.widget(knots)->isVisible());
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(DialogWindowTest, escapeAndTheWindowButtonLeaveAModelessDialogUp) {
    launch(kites);
    QTest::keyClick(widgets.widget(kites), Qt::Key_Escape);
    widgets.widget(kites)->close();
    EXPECT_THAT(take(), ElementsAre("close", "close"));
    EXPECT_TRUE(widgets.widget(kites)->isVisible());
}

TEST_F(DialogWindowTest, escapeAndTheWindowButtonCancelAModalDialog) {
    launch(knots);
    QTest::keyClick(widgets.widget(knots), Qt::Key_Escape);
    widgets.widget(knots)->close();
    EXPECT_THAT(take(), ElementsAre("cancel", "cancel"));
    EXPECT_TRUE(widgets.widget(knots)->isVisible());
}

TEST_F(DialogWindowTest, aCloseCallbackThatDropsHides) {
    launch(kites);
    on("close", [this] { CorGUIDialogDrop(kites); });
    widgets.widget(kites)->close();
    EXPECT_FALSE(widgets.widget(kites)->isVisible());
    EXPECT_THAT(take(), ElementsAre("close"));
}

TEST_F(DialogWindowTest, theButtonsTellAndLeaveTheDialogUp) {
    launch(knots);
    for (const auto kind :
         {QDialogButtonBox::Ok, QDialogButtonBox::Apply, QDialogButtonBox::Cancel}) {
        click(standard(knots, kind));
    }
    EXPECT_THAT(take(), ElementsAre("ok", "apply", "cancel"));
    EXPECT_EQ(standard(knots, QDialogButtonBox::Help), nullptr);
    EXPECT_TRUE(widgets.widget(knots)->isVisible());
}

TEST_F(DialogWindowTest, aModelessDialogHasCloseAndHelp) {
    launch(kites);
    click(standard(kites, QDialogButtonBox::Close));
    click(standard(kites, QDialogButtonBox::Help));
    EXPECT_THAT(take(), ElementsAre("close", "help"));
    EXPECT_EQ(standard(kites, QDialogButtonBox::Ok), nullptr);
    EXPECT_EQ(standard(kites, QDialogButtonBox::Apply), nullptr);
}

TEST_F(DialogWindowTest, returnOutsideOfFieldsIsOkInAModalDialogAndNothingInAnother) {
    CorGUIListAdd(knots, 0, 0, 900, 300, TRUE, nullptr);
    CorGUIButtonAdd(kites, 0, 0, 900, 145, "Fly", &press);
    CorGUIListAdd(kites, 0, 300, 900, 300, TRUE, nullptr);
    launch(kites);
    QTest::keyClick(widgets.widget(kites), Qt::Key_Return);
    EXPECT_THAT(take(), IsEmpty());
    launch(knots);
    QTest::keyClick(widgets.widget(knots), Qt::Key_Return);
    EXPECT_THAT(take(), ElementsAre("ok"));
}

TEST_F(DialogWindowTest, theFirstReturnInAFieldCommitsAndTheSecondIsOk) {
    const int field = CorGUITextFieldAdd(knots, 0, 0, 900, 145, &text);
    launch(knots);
    auto* const edit = widget<QLineEdit>(field);
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("bowline"));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_THAT(take(), ElementsAre("text bowline"));
    QTest::keyClick(edit, Qt::Key_Enter);
    EXPECT_THAT(take(), ElementsAre("ok"));
}

TEST_F(DialogWindowTest, aModalDialogTakesTheInputOfTheOthers) {
    const int button = CorGUIButtonAdd(kites, 0, 0, 900, 145, "Fly", &press);
    launch(kites);
    launch(knots);
    widgets.widget(kites)->close();
    click(widget<QPushButton>(button));
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_TRUE(widgets.widget(kites)->isVisible());
}

TEST_F(DialogWindowTest, theEndOfTheHostTakesTheWindowsAway) {
    launch(kites);
    const QPointer<QWidget> window = widgets.widget(kites);
    session.quit();
    settle();
    EXPECT_TRUE(window.isNull());
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(DialogWindowTest, aCallbackMayEndTheHost) {
    const int button = CorGUIButtonAdd(kites, 0, 0, 900, 145, "Fly", &press);
    launch(kites);
    on("press", [this] { session.quit(); });
    click(widget<QPushButton>(button));
    EXPECT_THAT(take(), ElementsAre("press"));
}

} // namespace
} // namespace corvane::test
