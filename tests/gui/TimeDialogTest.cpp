// The time animation options in the hands of a user.
#include "tests/gui/KeyFrameWindowTest.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QtTest>

namespace corvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString cycles = QStringLiteral("Num Cycles:");

class TimeDialog : public KeyFrameWindowTest {
protected:
    const QString timeTitle = QStringLiteral("Time Animation Options");

    DialogUser openTimeDialog(const DialogUser& main) {
        main.choose(QStringLiteral("Options"), QStringLiteral("Time Animation Options..."));
        return DialogUser(timeTitle);
    }
    static bool timeIsAnimated(const DialogUser& main) {
        return main.entry(QStringLiteral("Options"), QStringLiteral("Animate Time Concurrently"))
            .isChecked();
    }
    static void clickArrow(const DialogUser& dialog, bool isUp) {
        auto& spin = *dialog.window().findChild<QAbstractSpinBox*>();
        QStyleOptionSpinBox option;
        option.initFrom(&spin);
        option.buttonSymbols = spin.buttonSymbols();
        option.frame = spin.hasFrame();
        const QRect arrow = spin.style()->subControlRect(
            QStyle::CC_SpinBox, &option, isUp ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown,
            &spin);
        DialogUser::click(spin, arrow.center());
    }
};

TEST_F(TimeDialog, keepsWhatIsConfirmedAndTurnsTimeOn) {
    const DialogUser main = openDialog();
    {
        const DialogUser dialog = openTimeDialog(main);
        EXPECT_TRUE(dialog.button(QStringLiteral("Forward")).isChecked());
        EXPECT_FALSE(dialog.field(cycles).isEnabled());
        EXPECT_FALSE(dialog.label(cycles).isEnabled());
        dialog.click(QStringLiteral("Loop"));
        EXPECT_TRUE(dialog.field(cycles).isEnabled());
        EXPECT_TRUE(dialog.label(cycles).isEnabled());
        dialog.enter(cycles, QStringLiteral("3"));
        EXPECT_TRUE(dialog.window().isVisible()) << "Return in a field is not OK";
        dialog.click(QStringLiteral("OK"));
        EXPECT_FALSE(DialogUser::isUp(timeTitle));
    }
    EXPECT_TRUE(timeIsAnimated(main));
    const DialogUser again = openTimeDialog(main);
    EXPECT_TRUE(again.button(QStringLiteral("Loop")).isChecked());
    EXPECT_EQ(again.field(cycles).text(), QStringLiteral("3"));
    again.press(Qt::Key_Escape);
    EXPECT_FALSE(DialogUser::isUp(timeTitle));
}

TEST_F(TimeDialog, theArrowsCountAndStopAtOne) {
    const DialogUser main = openDialog();
    const DialogUser dialog = openTimeDialog(main);
    dialog.click(QStringLiteral("Bounce"));
    clickArrow(dialog, true);
    clickArrow(dialog, true);
    EXPECT_EQ(dialog.field(cycles).text(), QStringLiteral("3"));
    clickArrow(dialog, false);
    EXPECT_EQ(dialog.field(cycles).text(), QStringLiteral("2"));
    dialog.type(cycles, QStringLiteral("7"));
    clickArrow(dialog, true);
    EXPECT_EQ(dialog.field(cycles).text(), QStringLiteral("8")) << "from what was typed";
    dialog.enter(cycles, QStringLiteral("1"));
    clickArrow(dialog, false);
    EXPECT_EQ(dialog.field(cycles).text(), QStringLiteral("1"));
    dialog.press(Qt::Key_Up);
    EXPECT_EQ(dialog.field(cycles).text(), QStringLiteral("2"));
    dialog.press(Qt::Key_Escape);
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(TimeDialog, refusesWhatIsNoNumber) {
    const DialogUser main = openDialog();
    const DialogUser dialog = openTimeDialog(main);
    dialog.click(QStringLiteral("Loop"));
    dialog.type(cycles, QStringLiteral("often"));
    dialog.click(QStringLiteral("OK"));
    EXPECT_THAT(errors(), ElementsAre("Invalid input. Input must be a number greater than or "
                                      "equal to 1."));
    EXPECT_EQ(dialog.field(cycles).text(), QStringLiteral("1"));
    EXPECT_TRUE(DialogUser::isUp(timeTitle));
    EXPECT_FALSE(timeIsAnimated(main));
    dialog.click(QStringLiteral("OK"));
    EXPECT_FALSE(DialogUser::isUp(timeTitle));
}

TEST_F(TimeDialog, cancelAndEscForgetWhatWasChosen) {
    const DialogUser main = openDialog();
    for (const bool byEsc : {false, true}) {
        const DialogUser dialog = openTimeDialog(main);
        EXPECT_TRUE(dialog.button(QStringLiteral("Forward")).isChecked());
        dialog.click(QStringLiteral("As Captured"));
        if (byEsc) {
            dialog.press(Qt::Key_Escape);
        } else {
            dialog.click(QStringLiteral("Cancel"));
        }
        EXPECT_FALSE(DialogUser::isUp(timeTitle));
        EXPECT_FALSE(timeIsAnimated(main));
    }
}

TEST_F(TimeDialog, keepsTheUserFromTheOtherWindows) {
    const DialogUser main = openDialog();
    capture(main, 1);
    const DialogUser dialog = openTimeDialog(main);
    main.click(QStringLiteral("Append"));
    main.click(QStringLiteral("Close"));
    QTest::qWait(50);
    EXPECT_EQ(main.rows().size(), 1);
    EXPECT_TRUE(main.window().isVisible());
    dialog.click(QStringLiteral("Cancel"));
    main.click(QStringLiteral("Append"));
    EXPECT_TRUE(waitUntil([&] { return main.rows().size() == 2; }));
}

TEST_F(TimeDialog, tabGoesFromTheOperationToTheCyclesToOk) {
    const DialogUser main = openDialog();
    const DialogUser dialog = openTimeDialog(main);
    dialog.click(QStringLiteral("Loop"));
    QStringList reached;
    for (int step = 0; step < 3; ++step) {
        dialog.press(Qt::Key_Tab);
        const auto* const button = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
        reached.append(button != nullptr ? button->text().remove(QLatin1Char('&')) : cycles);
    }
    EXPECT_EQ(reached, QStringList({cycles, QStringLiteral("OK"), QStringLiteral("Cancel")}));
    dialog.press(Qt::Key_Escape);
}

// An add-on may work for long before it takes its modal dialog down.
TEST_F(TimeDialog, escStopsWorkBehindAModalDialogAndNothingMore) {
    const DialogUser main = openDialog();
    const DialogUser dialog = openTimeDialog(main);
    session().status().start("Working", true, true);
    EXPECT_TRUE(session().status().check(10));
    dialog.press(Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([&] { return !session().status().check(20); }));
    session().status().finish();
    EXPECT_TRUE(DialogUser::isUp(timeTitle));
    dialog.press(Qt::Key_Escape);
    EXPECT_FALSE(DialogUser::isUp(timeTitle));
}

} // namespace

} // namespace corvane::test
