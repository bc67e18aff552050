// The selection of a list.
#include "addon/ui/controls/ListMultiSelectionModel.h"
#include "addon/ui/controls/ListSingleSelectionModel.h"
#include "tests/unit/addon/UiTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

class RecordingObserver : public ListSelectionModelObserverInterface {
public:
    void selectionChanged(const std::vector<unsigned long>& selectedItems) override {
        heard.push_back(selectedItems);
        if (reaction) {
            reaction();
        }
    }

    std::vector<std::vector<unsigned long>> heard;
    std::function<void()> reaction;
};

// Five rows, with both kinds of selection model over it.
class ListSelectionModelTest : public ControlTest {
protected:
    ListSelectionModelTest()
        : list(CorGUIListAdd(dialog, 0, 0, 100, 100, TRUE, nullptr)),
          view(list, ListViewInterface::SelectionModel_Multi),
          single(view),
          multi(view) {
        for (const char* const row : {"a", "b", "c", "d", "e"}) {
            CorGUIListAppendItem(list, row);
        }
        single.addObserver(observer);
        multi.addObserver(observer);
    }

    std::vector<long> selection() { return window().list().selection(); }

    const int list;
    ListView view;
    ListSingleSelectionModel single;
    ListMultiSelectionModel multi;
    RecordingObserver observer;
};

TEST_F(ListSelectionModelTest, readsIndicesFromZero) {
    window().list().select({1, 4});
    std::vector<unsigned long> items{7};
    multi.getSelectedItems(items);
    EXPECT_THAT(items, ElementsAre(0, 3));
}

TEST_F(ListSelectionModelTest, freesTheArrayOfTheHostUnderTheLock) {
    window().list().select({1, 4});
    host.clearCalls();
    std::vector<unsigned long> items;
    multi.getSelectedItems(items);
    EXPECT_THAT(host.calls().front(), lockStart);
    EXPECT_THAT(host.calls().back(), lockFinish);
}

TEST_F(ListSelectionModelTest, readsNothingFromNothing) {
    std::vector<unsigned long> items{7};
    multi.getSelectedItems(items);
    EXPECT_THAT(items, IsEmpty());
}

TEST_F(ListSelectionModelTest, knowsTheOneSelectedItem) {
    EXPECT_EQ(multi.getSelectedItem(), -1);
    window().list().select({3});
    EXPECT_EQ(multi.getSelectedItem(), 2);
    window().list().select({3, 4});
    EXPECT_EQ(multi.getSelectedItem(), -1);
}

TEST_F(ListSelectionModelTest, selectsOneItem) {
    multi.setSelectedItem(4);
    EXPECT_THAT(selection(), ElementsAre(5));
    multi.setSelectedItem(0);
    EXPECT_THAT(selection(), ElementsAre(1));
    EXPECT_THAT(observer.heard, ElementsAre(ElementsAre(4), ElementsAre(0)));
}

TEST_F(ListSelectionModelTest, deselectsForAnIndexThatNoRowHas) {
    for (const int item : {5, -1, 1000000}) {
        window().list().select({2});
        multi.setSelectedItem(item);
        EXPECT_THAT(selection(), IsEmpty()) << item;
    }
    EXPECT_EQ(observer.heard.size(), 3u);
}

TEST_F(ListSelectionModelTest, ofOneRowTakesTheFirstGivenAndNotTheSmallest) {
    single.setSelectedItems({4, 2});
    EXPECT_THAT(selection(), ElementsAre(5));
    EXPECT_THAT(observer.heard, ElementsAre(ElementsAre(4)));
}

TEST_F(ListSelectionModelTest, ofOneRowSkipsWhatDoesNotExist) {
    single.setSelectedItems({5, 99, 1, 0});
    EXPECT_THAT(selection(), ElementsAre(2));
    single.setSelectedItems({5});
    EXPECT_THAT(selection(), IsEmpty());
    EXPECT_EQ(observer.heard.size(), 2u);
}

TEST_F(ListSelectionModelTest, ofManyRowsTakesAllThatExist) {
    multi.setSelectedItems({3, 5, 0, 4294967295UL});
    EXPECT_THAT(selection(), ElementsAre(1, 4));
    EXPECT_THAT(observer.heard, ElementsAre(ElementsAre(0, 3)));
}

TEST_F(ListSelectionModelTest, ofManyRowsReplacesWhatWasSelected) {
    window().list().select({1, 2});
    host.clearCalls();
    multi.setSelectedItems({});
    EXPECT_THAT(selection(), IsEmpty());
    EXPECT_EQ(host.count("CorGUIListDeselectAllItems"), 1u);
    EXPECT_EQ(host.count("CorGUIListSetSelectedItems"), 1u);
}

TEST_F(ListSelectionModelTest, tellsWhatTheUserSelected) {
    window().list().select({2, 3});
    multi.selectionChanged();
    EXPECT_THAT(observer.heard, ElementsAre(ElementsAre(1, 2)));
}

TEST_F(ListSelectionModelTest, tellsEachObserverOnce) {
    multi.addObserver(observer);
    multi.selectionChanged();
    EXPECT_EQ(observer.heard.size(), 1u);
    multi.removeObserver(observer);
    multi.selectionChanged();
    EXPECT_EQ(observer.heard.size(), 1u);
}

TEST_F(ListSelectionModelTest, letsObserversLeaveWhileTheyAreTold) {
    RecordingObserver other;
    multi.addObserver(other);
    const auto leave = [&] {
        multi.removeObserver(observer);
        multi.removeObserver(other);
    };
    observer.reaction = leave;
    other.reaction = leave;
    multi.selectionChanged();
    EXPECT_EQ(observer.heard.size() + other.heard.size(), 1u);
}

TEST_F(ListSelectionModelTest, releasesItsLockWhenAnObserverThrows) {
    observer.reaction = [] { throw std::runtime_error("observer"); };
    EXPECT_THROW(multi.setSelectedItems({1}), std::runtime_error);
    EXPECT_THROW(single.setSelectedItems({1}), std::runtime_error);
    EXPECT_THROW(multi.setSelectedItem(1), std::runtime_error);
    EXPECT_EQ(lockDepth(), 0);
}

} // namespace
