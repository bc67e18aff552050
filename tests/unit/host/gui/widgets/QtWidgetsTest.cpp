// Buttons, labels, option menus, radio boxes, toggles and menus under mouse and keyboard.
#include "tests/unit/host/gui/widgets/WidgetsTest.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const char* const letters[] = {"&a", "b", "c"};

class QtWidgetsTest : public WidgetsTest {
protected:
    static QList<QRadioButton*> radios(QWidget* box) { return box->findChildren<QRadioButton*>(); }
};

TEST_F(QtWidgetsTest, aButtonHasLineBreaksMnemonicAndPadding) {
    const int button = CorGUIButtonAdd(kites, 0, 0, 1000, 232, "  Animate \n&Selected", &press);
    launch(kites);
    EXPECT_EQ(widget<QPushButton>(button)->text(), QStringLiteral("  Animate \n&Selected"));
    QTest::keyClick(widgets.widget(kites), Qt::Key_S, Qt::AltModifier);
    std::vector<std::string> pressed; // Qt shows the button pressed for a while first
    EXPECT_TRUE(QTest::qWaitFor([&] { return !(pressed = take()).empty(); }));
    EXPECT_THAT(pressed, ElementsAre("press"));
}

TEST_F(QtWidgetsTest, labelsAndTitlesArePlain) {
    const int label = CorGUILabelAdd(kites, 0, 0, "<b>&Size</b>");
    const int box = CorGUIFrameAdd(kites, 0, 0, 1000, 1000, "A & B");
    EXPECT_EQ(widget<QLabel>(label)->textFormat(), Qt::PlainText);
    EXPECT_EQ(widget<QLabel>(label)->text(), QStringLiteral("<b>&Size</b>"));
    EXPECT_EQ(widget<QGroupBox>(box)->title(), QStringLiteral("A && B"));
    const int before = widget<QLabel>(label)->width();
    launch(kites);
    CorGUILabelSetText(label, "a text that is quite a bit longer");
    EXPECT_GT(widget<QLabel>(label)->width(), before);
}

TEST_F(QtWidgetsTest, toolTipsArePlain) {
    const int button = CorGUIButtonAdd(kites, 0, 0, 1000, 145, "Fly", &press);
    CorGUISetToolTip(button, "go & fly");
    EXPECT_EQ(widget<QPushButton>(button)->toolTip(), QStringLiteral("go & fly"));
    CorGUISetToolTip(button, "<b>go</b>");
    EXPECT_THAT(widget<QPushButton>(button)->toolTip().toStdString(),
                ::testing::HasSubstr("&lt;b&gt;go&lt;/b&gt;"));
}

TEST_F(QtWidgetsTest, dimmedControlsAreDisabled) {
    const int label = CorGUILabelAdd(kites, 0, 0, "Size");
    const int button = CorGUIButtonAdd(kites, 0, 200, 1000, 145, "Fly", &press);
    launch(kites);
    CorGUISetSensitivity(label, FALSE);
    CorGUISetSensitivity(button, FALSE);
    EXPECT_FALSE(widget<QLabel>(label)->isEnabled());
    click(widget<QPushButton>(button));
    EXPECT_THAT(take(), IsEmpty());
    CorGUISetSensitivity(button, TRUE);
    click(widget<QPushButton>(button));
    EXPECT_THAT(take(), ElementsAre("press"));
}

TEST_F(QtWidgetsTest, anOptionMenuTellsTheUsersChoiceAlone) {
    const int menu = CorGUIOptionMenuAdd(kites, 0, 0, 1000, 145, letters, 3, &option);
    launch(kites);
    auto* const box = widget<QComboBox>(menu);
    EXPECT_EQ(box->currentIndex(), 0);
    CorGUIOptionMenuSet(menu, 3);
    EXPECT_EQ(box->currentIndex(), 2);
    CorGUIOptionMenuDeleteAllItems(menu);
    EXPECT_EQ(box->currentIndex(), -1);
    for (const char* item : {"x", "y", "z"}) {
        CorGUIOptionMenuAppendItem(menu, item);
    }
    EXPECT_EQ(box->count(), 3);
    EXPECT_EQ(box->currentIndex(), 2);
    EXPECT_THAT(take(), IsEmpty());
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_THAT(take(), ElementsAre("option 2"));
    EXPECT_EQ(CorGUIOptionMenuGet(menu), 2);
}

TEST_F(QtWidgetsTest, aRadioBoxTellsTheUsersChoiceAlone) {
    const int box = CorGUIRadioBoxAdd(kites, 0, 0, 1000, 600, letters, 3, &radio);
    launch(kites);
    const QList<QRadioButton*> buttons = radios(widgets.widget(box));
    ASSERT_EQ(buttons.size(), 3);
    EXPECT_TRUE(buttons[0]->isChecked());
    CorGUIRadioBoxSetToggle(box, 0);
    EXPECT_FALSE(buttons[0]->isChecked());
    CorGUIRadioBoxSetToggle(box, 3);
    EXPECT_TRUE(buttons[2]->isChecked());
    EXPECT_THAT(take(), IsEmpty());
    QTest::mouseClick(buttons[1], Qt::LeftButton, {}, QPoint(5, buttons[1]->height() / 2));
    EXPECT_THAT(take(), ElementsAre("radio 2"));
    EXPECT_FALSE(buttons[2]->isChecked());
}

TEST_F(QtWidgetsTest, aToggleTellsTheUsersClickAlone) {
    const int check = CorGUIToggleAdd(kites, 0, 0, 1000, 145, "&Tail", &toggle);
    launch(kites);
    auto* const box = widget<QCheckBox>(check);
    CorGUIToggleSet(check, TRUE);
    EXPECT_TRUE(box->isChecked());
    EXPECT_THAT(take(), IsEmpty());
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(5, box->height() / 2));
    EXPECT_THAT(take(), ElementsAre("toggle 0"));
}

TEST_F(QtWidgetsTest, aRefusedTextPutsTheOthersBack) {
    const int field = CorGUITextFieldAdd(kites, 0, 1200, 1000, 145, &text);
    const int check = CorGUIToggleAdd(kites, 0, 0, 1000, 145, "&Tail", &toggle);
    const int box = CorGUIRadioBoxAdd(kites, 0, 200, 1000, 600, letters, 3, &radio);
    const int menu = CorGUIOptionMenuAdd(kites, 0, 900, 1000, 145, letters, 3, &option);
    launch(kites);
    textAnswer = 0;
    const auto type = [&] {
        widget<QLineEdit>(field)->setFocus();
        QTest::keyClicks(widget<QLineEdit>(field), QStringLiteral("x"));
    };
    type();
    QTest::mouseClick(widget<QCheckBox>(check), Qt::LeftButton, {}, QPoint(5, 8));
    EXPECT_FALSE(widget<QCheckBox>(check)->isChecked());
    type();
    const QList<QRadioButton*> buttons = radios(widgets.widget(box));
    QTest::mouseClick(buttons[1], Qt::LeftButton, {}, QPoint(5, buttons[1]->height() / 2));
    EXPECT_TRUE(buttons[0]->isChecked());
    EXPECT_FALSE(buttons[1]->isChecked());
    type();
    QTest::keyClick(widget<QComboBox>(menu), Qt::Key_Down);
    EXPECT_EQ(widget<QComboBox>(menu)->currentIndex(), 0);
    EXPECT_THAT(take(), ElementsAre("text x", "text xx", "text xxx"));
}

class DialogMenuTest : public WidgetsTest {
protected:
    DialogMenuTest()
        : bar(CorGUIMenuBarAdd(kites)),
          menu(CorGUIMenuAdd(bar, "&Sky")),
          check(CorGUIMenuAddToggle(menu, "&Clear", "No clouds", &menuToggle)),
          wind(CorGUIMenuAddItem(menu, "&Wind...", nullptr, &item)) {
        launch(kites);
    }
    int bar;
    int menu;
    int check;
    int wind;
};

TEST_F(DialogMenuTest, entriesStandInTheMenu) {
    CorGUIMenuAddSeparator(menu);
    const int sub = CorGUIMenuAdd(menu, "Stars");
    CorGUIMenuAddItem(sub, "Sirius", nullptr, &item);
    EXPECT_EQ(widget<QMenu>(menu)->title(), QStringLiteral("&Sky"));
    const QList<QAction*> entries = widget<QMenu>(menu)->actions();
    ASSERT_EQ(entries.size(), 4);
    EXPECT_EQ(entries[0]->text(), QStringLiteral("&Clear"));
    EXPECT_EQ(entries[0]->toolTip(), QStringLiteral("No clouds"));
    EXPECT_TRUE(entries[2]->isSeparator());
    EXPECT_EQ(entries[3]->menu(), widgets.widget(sub));
}

TEST_F(DialogMenuTest, keysChooseEntries) {
    widget<QMenu>(menu)->popup({});
    QTest::keyClick(widget<QMenu>(menu), Qt::Key_W);
    EXPECT_THAT(take(), ElementsAre("item"));
}

TEST_F(DialogMenuTest, onlyTheUserIsToldOfAToggle) {
    CorGUIMenuSetToggle(check, TRUE);
    EXPECT_TRUE(widgets.action(check)->isChecked());
    EXPECT_THAT(take(), IsEmpty());
    widgets.action(check)->trigger();
    EXPECT_FALSE(widgets.action(check)->isChecked());
    EXPECT_THAT(take(), ElementsAre("menuToggle 0"));
}

TEST_F(DialogMenuTest, theCallbackHasTheLastWordOnItsToggle) {
    on("menuToggle", [this] { CorGUIMenuSetToggle(check, FALSE); });
    widgets.action(check)->trigger();
    EXPECT_FALSE(widgets.action(check)->isChecked());
}

TEST_F(DialogMenuTest, menusAndEntriesCanBeDimmed) {
    CorGUISetSensitivity(wind, FALSE);
    EXPECT_FALSE(widgets.action(wind)->isEnabled());
    CorGUISetSensitivity(menu, FALSE);
    EXPECT_FALSE(widgets.action(menu)->isEnabled());
    widgets.action(wind)->trigger();
    EXPECT_THAT(take(), IsEmpty());
}

} // namespace
} // namespace corvane::test
