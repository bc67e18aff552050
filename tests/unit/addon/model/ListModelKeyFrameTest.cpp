// The list of key frames.
#include "tests/unit/addon/lists/RecordingObserver.h"

#include "addon/model/ListModelKeyFrame.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace corvane::corutiltools;
using corvane::test::RecordingObserver;
using testing::ElementsAre;
using testing::IsEmpty;

using Model = ListModelGenericInterface;

KeyFrame_s keyFrame(const std::string& name, unsigned long frameCount = 10) {
    return {View(1, 2, 3, 4, 5, 6, 7), name, frameCount, 0.5};
}

std::vector<std::string> names(const ListModelKeyFrame& model) {
    std::vector<std::string> result;
    for (const KeyFrame_s& item : model.dataList()) {
        result.push_back(item.name);
    }
    return result;
}

class ListModelKeyFrameTest : public testing::Test {
protected:
    ListModelKeyFrameTest() {
        model.setDataList({keyFrame("a"), keyFrame("b"), keyFrame("c")});
        model.addObserver(observer);
        // The reset was pending as nobody observed; delivered, it leaves single changes their way.
        model.setDataList(model.dataList());
        observer.changes.clear();
    }

    ListModelKeyFrame model;
    RecordingObserver observer;
};

TEST_F(ListModelKeyFrameTest, hasItsMessageWhetherEmptyOrNot) {
    EXPECT_EQ(model.emptyModelMessage(), "No Key Frames established.");
    EXPECT_EQ(ListModelKeyFrame().emptyModelMessage(), "No Key Frames established.");
}

TEST_F(ListModelKeyFrameTest, readsTheFieldsOfAKeyFrame) {
    EXPECT_EQ(model.size(), 3u);
    EXPECT_EQ(model.displayString(1), "b");
    EXPECT_EQ(model.name(1), "b");
    EXPECT_EQ(model.frameCount(1), 10u);
    EXPECT_EQ(model.solutionTime(1), 0.5);
    EXPECT_EQ(model.data(1), keyFrame("b"));
}

TEST_F(ListModelKeyFrameTest, refusesAnIndexWithoutKeyFrame) {
    const std::vector<KeyFrame_s> before = model.dataList();
    for (const unsigned long index : {3ul, 4ul, std::numeric_limits<unsigned long>::max()}) {
        EXPECT_THROW(model.data(index), std::out_of_range);
        EXPECT_THROW(model.displayString(index), std::out_of_range);
        EXPECT_THROW(model.name(index), std::out_of_range);
        EXPECT_THROW(model.frameCount(index), std::out_of_range);
        EXPECT_THROW(model.solutionTime(index), std::out_of_range);
        EXPECT_THROW(model.setName(index, "x"), std::out_of_range);
        EXPECT_THROW(model.setData(index, keyFrame("x")), std::out_of_range);
        EXPECT_THROW(model.setFrameCount(index, 1), std::out_of_range);
        EXPECT_THROW(model.setSolutionTime(index, 1), std::out_of_range);
        EXPECT_THROW(model.update(index, View()), std::out_of_range);
    }
    EXPECT_EQ(model.dataList(), before);
    EXPECT_THAT(observer.changes, IsEmpty());
}

TEST_F(ListModelKeyFrameTest, reportsNamesAndDataThatChange) {
    model.setName(1, "new");
    model.setData(2, keyFrame("other", 7));
    EXPECT_THAT(names(model), ElementsAre("a", "new", "other"));
    EXPECT_EQ(model.frameCount(2), 7u);
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ItemsChanged, {1}},
                                              ChangeInfo_s{Model::ItemsChanged, {2}}));
}

TEST_F(ListModelKeyFrameTest, keepsFrameCountsAndTimesToItself) {
    model.setFrameCount(0, 99);
    model.setSolutionTime(0, 2.5);
    EXPECT_EQ(model.frameCount(0), 99u);
    EXPECT_EQ(model.solutionTime(0), 2.5);
    EXPECT_THAT(observer.changes, IsEmpty());
}

TEST_F(ListModelKeyFrameTest, insertsBeforeTheIndex) {
    model.insertItems(1, {keyFrame("x"), keyFrame("y")});
    EXPECT_THAT(names(model), ElementsAre("a", "x", "y", "b", "c"));
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ItemsInserted, {1, 2}}));
}

TEST_F(ListModelKeyFrameTest, appendsAtTheIndexPastTheLast) {
    model.insertItems(3, {keyFrame("x"), keyFrame("y")});
    EXPECT_THAT(names(model), ElementsAre("a", "b", "c", "x", "y"));
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ItemsInserted, {3, 4}}));
}

TEST_F(ListModelKeyFrameTest, reportsAnAppendOneBeyondTheEndWhereItHappened) {
    model.insertItem(4, keyFrame("x"));
    EXPECT_THAT(names(model), ElementsAre("a", "b", "c", "x"));
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ItemsInserted, {3}}));
}

TEST_F(ListModelKeyFrameTest, reportsAnAppendFurtherBeyondTheEndFromTheIndexBefore) {
    model.insertItems(5, {keyFrame("x"), keyFrame("y")});
    EXPECT_THAT(names(model), ElementsAre("a", "b", "c", "x", "y"));
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ItemsInserted, {4, 5}}));
}

TEST_F(ListModelKeyFrameTest, reportsThatNothingWasInserted) {
    model.insertItems(1, {});
    EXPECT_EQ(model.size(), 3u);
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ItemsInserted, {}}));
}

TEST_F(ListModelKeyFrameTest, insertsOneItemThroughTheListForm) {
    class Derived : public ListModelKeyFrame {
    public:
        void insertItems(unsigned long index, const std::vector<KeyFrame_s>& keyFrames) override {
            insertedAt = index;
            inserted = keyFrames;
        }
        unsigned long insertedAt = 0;
        std::vector<KeyFrame_s> inserted;
    };
    Derived derived;
    derived.insertItem(7, keyFrame("x"));
    EXPECT_EQ(derived.insertedAt, 7u);
    EXPECT_THAT(derived.inserted, ElementsAre(keyFrame("x")));
}

TEST_F(ListModelKeyFrameTest, insertsACopyOfItsOwnItem) {
    model.insertItem(0, model.data(2));
    EXPECT_THAT(names(model), ElementsAre("c", "a", "b", "c"));
}

TEST_F(ListModelKeyFrameTest, removesOneItem) {
    model.removeItem(1);
    EXPECT_THAT(names(model), ElementsAre("a", "c"));
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ItemsRemoved, {1}}));
}

TEST_F(ListModelKeyFrameTest, removesARange) {
    model.removeItems(1, 2);
    EXPECT_THAT(names(model), ElementsAre("a"));
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ItemsRemoved, {1, 2}}));
}

TEST_F(ListModelKeyFrameTest, reportsThatNothingWasRemoved) {
    model.removeItems(2, 0);
    EXPECT_EQ(model.size(), 3u);
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ItemsRemoved, {}}));
}

TEST_F(ListModelKeyFrameTest, replacesTheWholeList) {
    model.setDataList({keyFrame("x")});
    EXPECT_THAT(names(model), ElementsAre("x"));
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ModelReset, {}}));
    model.setName(0, "y");
    EXPECT_EQ(observer.changes.size(), 2u);
}

TEST_F(ListModelKeyFrameTest, replacesTheWholeListByNothing) {
    model.setDataList({});
    EXPECT_EQ(model.size(), 0u);
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ModelReset, {}}));
}

TEST_F(ListModelKeyFrameTest, replacesTheListByItself) {
    model.setDataList(model.dataList());
    EXPECT_THAT(names(model), ElementsAre("a", "b", "c"));
}

TEST_F(ListModelKeyFrameTest, dropsSingleChangesWhileAReplacementWaitsForAnObserver) {
    model.removeObserver(observer);
    model.setDataList({keyFrame("x")});
    model.addObserver(observer);
    model.setName(0, "y");
    EXPECT_EQ(model.name(0), "y");
    EXPECT_THAT(observer.changes, IsEmpty());
    model.setDataList({keyFrame("z")});
    model.setName(0, "last");
    EXPECT_THAT(observer.changes, ElementsAre(ChangeInfo_s{Model::ModelReset, {}},
                                              ChangeInfo_s{Model::ItemsChanged, {0}}));
}

TEST_F(ListModelKeyFrameTest, findsAKeyFrameByAllItsFields) {
    EXPECT_EQ(model.indexForData(keyFrame("b")), 1u);
    EXPECT_EQ(model.indexForData(keyFrame("b", 11)), 4u);
    EXPECT_EQ(model.end(), 4u);
    KeyFrame_s moved = keyFrame("b");
    moved.view.setWidth(7 + 1e-12);
    EXPECT_EQ(model.indexForData(moved), model.end());
    KeyFrame_s later = keyFrame("b");
    later.solutionTime = 0.75;
    EXPECT_EQ(model.indexForData(later), model.end());
}

TEST_F(ListModelKeyFrameTest, rebuildsNothing) {
    model.rebuildModel();
    EXPECT_THAT(names(model), ElementsAre("a", "b", "c"));
    EXPECT_THAT(observer.changes, IsEmpty());
}

TEST_F(ListModelKeyFrameTest, tellsNobodyOfItsEnd) {
    {
        ListModelKeyFrame brief;
        brief.addObserver(observer);
        brief.insertItem(0, keyFrame("x"));
        observer.changes.clear();
    }
    EXPECT_THAT(observer.changes, IsEmpty());
}

} // namespace
