// Lists: rows and their selection.
#include "tests/unit/host/api/GuiTest.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListApiTest : public GuiTest {
protected:
    ListApiTest() : rows(addList(TRUE)) { append(rows, 5); }
    int addList(CorBool isMulti) { return CorGUIListAdd(kites, 0, 0, 900, 900, isMulti, &list); }
    static void append(int list, int count) {
        for (int number = 1; number <= count; ++number) {
            CorGUIListAppendItem(list, std::to_string(number).c_str());
        }
    }
    static std::vector<long> selected(int list) {
        long* positions = nullptr;
        long count = -1;
        CorGUIListGetSelectedItems(list, &positions, &count);
        std::vector<long> copy(positions, positions + count);
        void* array = positions;
        CorUtilArrayDealloc(&array);
        return copy;
    }
    static void select(int list, std::vector<int> positions) {
        CorGUIListSetSelectedItems(list, positions.data(), static_cast<long>(positions.size()));
    }

    int rows;
};

TEST_F(ListApiTest, rowsAreAppendedReplacedAndDeleted) {
    CorGUIListReplaceItem(rows, "two", 2);
    CorGUIListDeleteItemAtPos(rows, 4);
    CorGUIListAppendItem(rows, nullptr);
    EXPECT_EQ(CorGUIListGetItemCount(rows), 5);
    EXPECT_THAT(kitesDialog().list().rows(), ElementsAre("1", "two", "3", "5", ""));
    CorGUIListDeleteAllItems(rows);
    EXPECT_EQ(CorGUIListGetItemCount(rows), 0);
}

TEST_F(ListApiTest, positionsOutsideOfTheListAreLeftAlone) {
    for (const long position : {-1L, 0L, 6L}) {
        CorGUIListReplaceItem(rows, "x", position);
        CorGUIListDeleteItemAtPos(rows, position);
    }
    EXPECT_THAT(kitesDialog().list().rows(), ElementsAre("1", "2", "3", "4", "5"));
}

TEST_F(ListApiTest, appendingSelectsNothing) {
    EXPECT_THAT(selected(rows), IsEmpty());
    CorGUIListSetSelectedItem(rows, 2);
    CorGUIListAppendItem(rows, "6");
    EXPECT_THAT(selected(rows), ElementsAre(2));
}

TEST_F(ListApiTest, nothingSelectedIsNull) {
    long storage = 5;
    long* positions = &storage;
    long count = 5;
    CorGUIListGetSelectedItems(rows, &positions, &count);
    EXPECT_EQ(positions, nullptr);
    EXPECT_EQ(count, 0);
    CorGUIListSetSelectedItem(rows, 2);
    CorGUIListGetSelectedItems(rows, nullptr, nullptr);
}

TEST_F(ListApiTest, theSelectionIsReplacedSortedAndWithoutWhatIsNotThere) {
    select(rows, {5, 9, 2, 0, 2, -3});
    EXPECT_THAT(selected(rows), ElementsAre(2, 5));
    select(rows, {3});
    EXPECT_THAT(selected(rows), ElementsAre(3));
    CorGUIListSetSelectedItem(rows, 1);
    EXPECT_THAT(selected(rows), ElementsAre(1));
    CorGUIListSetSelectedItem(rows, 6);
    EXPECT_THAT(selected(rows), ElementsAre(1));
    CorGUIListDeselectAllItems(rows);
    EXPECT_THAT(selected(rows), IsEmpty());
    CorGUIListSetSelectedItem(rows, 1);
    CorGUIListSetSelectedItems(rows, nullptr, 3);
    EXPECT_THAT(selected(rows), IsEmpty());
}

TEST_F(ListApiTest, aListForOneRowSelectsOne) {
    const int single = addList(FALSE);
    append(single, 5);
    select(single, {4, 2});
    EXPECT_THAT(selected(single), ElementsAre(4));
}

TEST_F(ListApiTest, deletingKeepsTheSelectionOfTheOtherRows) {
    select(rows, {1, 3, 5});
    CorGUIListDeleteItemAtPos(rows, 3);
    EXPECT_THAT(selected(rows), ElementsAre(1, 4));
    CorGUIListDeleteItemAtPos(rows, 2);
    EXPECT_THAT(selected(rows), ElementsAre(1, 3));
    CorGUIListReplaceItem(rows, "x", 1);
    EXPECT_THAT(selected(rows), ElementsAre(1, 3));
    CorGUIListDeleteAllItems(rows);
    append(rows, 5);
    EXPECT_THAT(selected(rows), IsEmpty());
}

TEST_F(ListApiTest, aDimmedListReportsNoSelection) {
    select(rows, {1, 3});
    CorGUISetSensitivity(rows, FALSE);
    EXPECT_THAT(selected(rows), IsEmpty());
    CorGUISetSensitivity(rows, TRUE);
    EXPECT_THAT(selected(rows), ElementsAre(1, 3));
}

TEST_F(ListApiTest, settingTheSelectionTellsNobody) {
    launchKites();
    CorGUIListSetSelectedItem(rows, 2);
    select(rows, {1, 3});
    CorGUIListDeselectAllItems(rows);
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(ListApiTest, theUsersSelectionIsTold) {
    const MemoryList shown = launchKites().list();
    shown.select({4, 2});
    EXPECT_THAT(take(), ElementsAre("list 2"));
    EXPECT_THAT(selected(rows), ElementsAre(2, 4));
    shown.select({});
    EXPECT_THAT(take(), ElementsAre("list 0"));
}

TEST_F(ListApiTest, theSameSelectionIsNotToldAgain) {
    const MemoryList shown = launchKites().list();
    shown.select({2});
    shown.select({2});
    EXPECT_THAT(take(), ElementsAre("list 2"));
}

TEST_F(ListApiTest, aDimmedListCannotBeUsed) {
    launchKites();
    CorGUISetSensitivity(rows, FALSE);
    EXPECT_THROW(kitesDialog().list().select({1}), std::logic_error);
    host.session().controlActions().select(rows, {1});
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(ListApiTest, aHundredThousandRowsAreNoBurden) {
    const int many = addList(TRUE);
    host.stopRemembering();
    append(many, 100'000);
    std::vector<int> all(100'000);
    for (int position = 0; position < 100'000; ++position) {
        all[static_cast<std::size_t>(position)] = 100'000 - position;
    }
    select(many, all);
    EXPECT_EQ(selected(many).size(), 100'000U);
    EXPECT_EQ(CorGUIListGetItemCount(many), 100'000);
}

} // namespace
} // namespace corvane::test
