// Text fields and spin fields under mouse and keyboard.
#include "tests/unit/host/gui/widgets/WidgetsTest.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTimer>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FieldEditTest : public WidgetsTest {
protected:
    FieldEditTest()
        : field(CorGUITextFieldAdd(kites, 100, 100, 1000, 145, &text)),
          other(CorGUITextFieldAdd(kites, 100, 400, 1000, 145, &text)),
          button(CorGUIButtonAdd(kites, 100, 700, 1000, 145, "Fly", &press)) {
        launch(kites);
    }
    void type(const char* typed) const {
        auto* const edit = widget<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, QString::fromLatin1(typed));
    }
    int field;
    int other;
    int button;
};

TEST_F(FieldEditTest, keysAloneTellNothing) {
    type("red");
    settle();
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_EQ(widget<QLineEdit>(field)->text(), QStringLiteral("red"));
}

TEST_F(FieldEditTest, settingTheTextShowsItAndTellsNobody) {
    CorGUITextFieldSetString(field, "r\xC3\xB6t <b> & \xF0\x9F\xAA\x81");
    settle();
    EXPECT_EQ(widget<QLineEdit>(field)->text(),
              QString::fromUtf8("r\xC3\xB6t <b> & \xF0\x9F\xAA\x81"));
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(FieldEditTest, leavingTheFieldCommitsOnce) {
    type("red");
    QTest::keyClick(widget<QLineEdit>(field), Qt::Key_Tab);
    settle();
    EXPECT_THAT(take(), ElementsAre("text red"));
    widget<QLineEdit>(field)->setFocus();
    widget<QLineEdit>(other)->setFocus();
    settle();
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(FieldEditTest, returnInAModelessDialogCommits) {
    type("red");
    QTest::keyClick(widget<QLineEdit>(field), Qt::Key_Return);
    QTest::keyClick(widget<QLineEdit>(field), Qt::Key_Return);
    EXPECT_THAT(take(), ElementsAre("text red"));
    EXPECT_TRUE(widgets.widget(kites)->isVisible());
}

TEST_F(FieldEditTest, aButtonComesAfterTheText) {
    type("red");
    click(widget<QPushButton>(button));
    EXPECT_THAT(take(), ElementsAre("text red", "press"));
}

TEST_F(FieldEditTest, aRefusedTextSwallowsTheClick) {
    textAnswer = 0;
    on("text", [this] { CorGUITextFieldSetString(field, "old"); });
    type("red");
    click(widget<QPushButton>(button));
    EXPECT_THAT(take(), ElementsAre("text red"));
    EXPECT_EQ(widget<QLineEdit>(field)->text(), QStringLiteral("old"));
    click(widget<QPushButton>(button));
    EXPECT_THAT(take(), ElementsAre("press"));
}

TEST_F(FieldEditTest, aBoxOfTheCallbackTakesTheFocusAndTellsNothingTwice) {
    on("text", [] {
        QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
        QMessageBox(QMessageBox::Critical, {}, QStringLiteral("no")).exec();
    });
    type("red");
    QTest::keyClick(widget<QLineEdit>(field), Qt::Key_Return);
    settle();
    EXPECT_THAT(take(), ElementsAre("text red"));
}

TEST_F(FieldEditTest, aBoxThatComesWhileTheUserTypesDoesNotCommit) {
    type("red");
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    QMessageBox(QMessageBox::Critical, {}, QStringLiteral("no")).exec();
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_EQ(widget<QLineEdit>(field)->text(), QStringLiteral("red"));
}

TEST_F(FieldEditTest, escapeCommitsBeforeItCloses) {
    type("red");
    QTest::keyClick(widget<QLineEdit>(field), Qt::Key_Escape);
    EXPECT_THAT(take(), ElementsAre("text red", "close"));
}

TEST_F(FieldEditTest, droppingForgetsWhatWasTyped) {
    CorGUITextFieldSetString(field, "old");
    type("red");
    CorGUIDialogDrop(kites);
    settle();
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_EQ(widget<QLineEdit>(field)->text(), QStringLiteral("old"));
}

TEST_F(FieldEditTest, aDimmedFieldTakesNoFocus) {
    type("red");
    CorGUISetSensitivity(field, FALSE);
    settle();
    EXPECT_THAT(take(), IsEmpty());
    widget<QLineEdit>(field)->setFocus();
    EXPECT_FALSE(widget<QLineEdit>(field)->hasFocus());
}

class SpinFieldTest : public WidgetsTest {
protected:
    SpinFieldTest() : field(CorGUISpinTextFieldAdd(knots, 100, 100, 1300, 145, &text, &up, &down)) {
        CorGUITextFieldSetString(field, "5");
        launch(knots);
    }
    QAbstractSpinBox* spin() const { return widget<QAbstractSpinBox>(field); }
    QString shown() const { return spin()->findChild<QLineEdit*>()->text(); }
    void clickArrow(QStyle::SubControl arrow) const {
        QStyleOptionSpinBox option;
        option.initFrom(spin());
        option.subControls = QStyle::SC_All;
        const QRect rect =
            spin()->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, spin());
        QTest::mouseClick(spin(), Qt::LeftButton, {}, rect.center());
    }
    int field;
};

TEST_F(SpinFieldTest, arrowsOnlyCall) {
    clickArrow(QStyle::SC_SpinBoxUp);
    clickArrow(QStyle::SC_SpinBoxDown);
    EXPECT_THAT(take(), ElementsAre("up", "down"));
    EXPECT_EQ(shown(), QStringLiteral("5"));
    QTest::keyClick(spin(), Qt::Key_Up);
    QTest::keyClick(spin(), Qt::Key_Down);
    EXPECT_THAT(take(), ElementsAre("up", "down"));
}

TEST_F(SpinFieldTest, theAddOnSetsTheTextFromTheArrow) {
    on("up", [this] { CorGUITextFieldSetString(field, "6"); });
    clickArrow(QStyle::SC_SpinBoxUp);
    EXPECT_EQ(shown(), QStringLiteral("6"));
    EXPECT_THAT(take(), ElementsAre("up"));
}

TEST_F(SpinFieldTest, arrowsCommitWhatWasTyped) {
    spin()->setFocus();
    spin()->selectAll();
    QTest::keyClicks(spin(), QStringLiteral("17"));
    EXPECT_THAT(take(), IsEmpty());
    QTest::keyClick(spin(), Qt::Key_Up);
    EXPECT_THAT(take(), ElementsAre("text 17", "up"));
}

TEST_F(SpinFieldTest, theFirstReturnCommitsAndTheSecondIsOk) {
    spin()->setFocus();
    spin()->selectAll();
    QTest::keyClicks(spin(), QStringLiteral("17"));
    QTest::keyClick(spin(), Qt::Key_Return);
    EXPECT_THAT(take(), ElementsAre("text 17"));
    QTest::keyClick(spin(), Qt::Key_Return);
    EXPECT_THAT(take(), ElementsAre("ok"));
}

} // namespace
} // namespace corvane::test
