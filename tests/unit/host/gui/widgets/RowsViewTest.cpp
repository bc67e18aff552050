// Lists under mouse and keyboard.
#include "host/gui/widgets/RowsView.h"
#include "tests/unit/host/gui/widgets/WidgetsTest.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RowsViewTest : public WidgetsTest {
protected:
    RowsViewTest() : rows(CorGUIListAdd(kites, 100, 100, 2000, 1500, TRUE, &list)) { append(5); }
    void append(int count) const {
        for (int number = 1; number <= count; ++number) {
            CorGUIListAppendItem(rows, ("row " + std::to_string(number)).c_str());
        }
    }
    gui::RowsView* view() const { return widget<gui::RowsView>(rows); }
    void clickRow(int position, Qt::KeyboardModifiers modifiers = {}) const {
        const QModelIndex index = view()->model()->index(position - 1, 0);
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers,
                          view()->visualRect(index).center());
        settle();
    }
    QString shown(int position) const {
        return view()->model()->index(position - 1, 0).data().toString();
    }
    int rows;
};

TEST_F(RowsViewTest, rowsAreShownAsTheyAre) {
    CorGUIListReplaceItem(rows, "<b>&one", 1);
    launch(kites);
    settle();
    EXPECT_EQ(view()->model()->rowCount(), 5);
    EXPECT_EQ(shown(1), QStringLiteral("<b>&one"));
    CorGUIListDeleteItemAtPos(rows, 2);
    CorGUIListAppendItem(rows, "last");
    CorGUIListDeleteItemAtPos(rows, 2);
    settle();
    EXPECT_EQ(view()->model()->rowCount(), 4);
    EXPECT_EQ(shown(2), QStringLiteral("row 4"));
    EXPECT_EQ(shown(4), QStringLiteral("last"));
    CorGUIListDeleteAllItems(rows);
    settle();
    EXPECT_EQ(view()->model()->rowCount(), 0);
}

TEST_F(RowsViewTest, clicksSelectAndAreTold) {
    launch(kites);
    settle();
    clickRow(2);
    EXPECT_THAT(take(), ElementsAre("list 2"));
    clickRow(4, Qt::ShiftModifier);
    EXPECT_THAT(view()->selectedPositions(), ElementsAre(2, 3, 4));
    clickRow(3, Qt::ControlModifier);
    EXPECT_THAT(view()->selectedPositions(), ElementsAre(2, 4));
    long* positions = nullptr;
    long count = 0;
    CorGUIListGetSelectedItems(rows, &positions, &count);
    EXPECT_THAT(std::vector<long>(positions, positions + count), ElementsAre(2, 4));
    void* array = positions;
    CorUtilArrayDealloc(&array);
}

TEST_F(RowsViewTest, settingTheSelectionShowsItAndTellsNobody) {
    launch(kites);
    const int selected[] = {1, 2, 5};
    CorGUIListSetSelectedItems(rows, selected, 3);
    settle();
    EXPECT_THAT(view()->selectedPositions(), ElementsAre(1, 2, 5));
    CorGUIListDeselectAllItems(rows);
    settle();
    EXPECT_THAT(view()->selectedPositions(), IsEmpty());
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(RowsViewTest, aRebuiltListKeepsTheSelectionItIsGiven) {
    launch(kites);
    settle();
    clickRow(3);
    take();
    CorGUIListDeleteAllItems(rows);
    append(4);
    CorGUIListSetSelectedItem(rows, 3);
    settle();
    EXPECT_THAT(view()->selectedPositions(), ElementsAre(3));
    CorGUIListDeleteAllItems(rows);
    append(4);
    settle();
    EXPECT_THAT(view()->selectedPositions(), IsEmpty());
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(RowsViewTest, theArrowKeysGoOnFromTheSelectedRow) {
    launch(kites);
    CorGUIListSetSelectedItem(rows, 3);
    settle();
    QTest::keyClick(view(), Qt::Key_Down);
    EXPECT_THAT(take(), ElementsAre("list 4"));
}

TEST_F(RowsViewTest, aTextIsCommittedBeforeTheSelectionChanges) {
    const int field = CorGUITextFieldAdd(kites, 2200, 100, 900, 145, &text);
    launch(kites);
    CorGUIListSetSelectedItem(rows, 1);
    settle();
    on("text", [this] {
        long* positions = nullptr;
        long count = 0;
        CorGUIListGetSelectedItems(rows, &positions, &count);
        EXPECT_THAT(std::vector<long>(positions, positions + count), ElementsAre(1));
        void* array = positions;
        CorUtilArrayDealloc(&array);
    });
    widget<QLineEdit>(field)->setFocus();
    QTest::keyClicks(widget<QLineEdit>(field), QStringLiteral("red"));
    clickRow(4);
    EXPECT_THAT(take(), ElementsAre("text red", "list 4"));
}

TEST_F(RowsViewTest, aRefusedTextPutsTheSelectionBack) {
    const int field = CorGUITextFieldAdd(kites, 2200, 100, 900, 145, &text);
    launch(kites);
    CorGUIListSetSelectedItem(rows, 1);
    settle();
    textAnswer = 0;
    widget<QLineEdit>(field)->setFocus();
    QTest::keyClicks(widget<QLineEdit>(field), QStringLiteral("red"));
    clickRow(4);
    EXPECT_THAT(take(), ElementsAre("text red"));
    EXPECT_THAT(view()->selectedPositions(), ElementsAre(1));
}

TEST_F(RowsViewTest, aDimmedListTakesNoClicks) {
    launch(kites);
    settle();
    CorGUISetSensitivity(rows, FALSE);
    clickRow(2);
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_THAT(view()->selectedPositions(), IsEmpty());
}

TEST_F(RowsViewTest, aChangedRowDoesNotScroll) {
    append(200);
    launch(kites);
    settle();
    view()->verticalScrollBar()->setValue(50);
    const int before = view()->verticalScrollBar()->value();
    ASSERT_GT(before, 0);
    CorGUIListReplaceItem(rows, "new", 3);
    settle();
    EXPECT_EQ(view()->verticalScrollBar()->value(), before);
}

TEST_F(RowsViewTest, aHundredThousandRowsOpenAtOnce) {
    std::vector<int> odd;
    for (int position = 1; position <= 100'000; position += 2) {
        odd.push_back(position);
    }
    QElapsedTimer clock;
    clock.start();
    append(100'000);
    CorGUIListSetSelectedItems(rows, odd.data(), 20);
    launch(kites);
    view()->grab();
    settle();
    RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
    EXPECT_LT(clock.elapsed(), 2000) << "far beyond what a row costs";
    EXPECT_EQ(view()->model()->rowCount(), 100'005);
    EXPECT_EQ(view()->selectedPositions().size(), 20U);
}

} // namespace
} // namespace corvane::test
