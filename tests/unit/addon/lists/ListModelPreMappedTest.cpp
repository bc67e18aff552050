// A list model over a fixed table.
#include "tests/unit/addon/lists/RecordingObserver.h"

#include "addon/lists/ListModelPreMapped.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace {

using namespace corvane::corutiltools;

enum Speed { Slow, Fast, Faster, Fastest };

const PreMappedValue<Speed> rows[] = {{"&Slow", Slow}, {"Fast", Fast}, {"Rapid", Fast}};

TEST(ListModelPreMapped, showsItsRows) {
    const ListModelPreMapped<Speed> model(rows, 3);
    EXPECT_EQ(model.size(), 3u);
    EXPECT_EQ(model.displayString(0), "&Slow");
    EXPECT_EQ(model.displayString(2), "Rapid");
    EXPECT_EQ(model.data(0), Slow);
    EXPECT_EQ(model.data(2), Fast);
}

TEST(ListModelPreMapped, keepsItsOwnCopyOfTheRows) {
    std::vector<PreMappedValue<Speed>> passing{{"Fast", Fast}};
    const ListModelPreMapped<Speed> model(passing.data(), passing.size());
    passing[0] = {"Slow", Slow};
    EXPECT_EQ(model.displayString(0), "Fast");
    EXPECT_EQ(model.data(0), Fast);
}

TEST(ListModelPreMapped, throwsForAnIndexOutOfRange) {
    const ListModelPreMapped<Speed> model(rows, 3);
    EXPECT_THROW(model.data(3), std::out_of_range);
    EXPECT_THROW(model.displayString(3), std::out_of_range);
}

TEST(ListModelPreMapped, findsTheFirstRowOfAValue) {
    const ListModelPreMapped<Speed> model(rows, 3);
    EXPECT_EQ(model.indexForData(Fast), 1u);
    EXPECT_EQ(model.indexForData(Fastest), model.end());
    EXPECT_EQ(model.end(), 4u);
}

TEST(ListModelPreMapped, cannotBeChanged) {
    ListModelPreMapped<Speed> model(rows, 3);
    corvane::test::RecordingObserver observer;
    model.addObserver(observer);
    model.setData(0, Fastest);
    model.insertItem(0, Fastest);
    model.removeItems(0, 3);
    model.rebuildModel();
    EXPECT_EQ(model.size(), 3u);
    EXPECT_EQ(model.data(0), Slow);
    EXPECT_TRUE(observer.changes.empty());
}

TEST(ListModelPreMapped, mayBeEmpty) {
    const ListModelPreMapped<Speed> model(rows, 0);
    EXPECT_EQ(model.size(), 0u);
    EXPECT_EQ(model.indexForData(Slow), 1u);
    EXPECT_EQ(model.emptyModelMessage(), "No items available.");
}

} // namespace
