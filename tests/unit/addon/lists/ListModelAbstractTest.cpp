// Observers of a list model, and how changes reach them.
#include "tests/unit/addon/lists/RecordingObserver.h"

#include "addon/lists/ListModelAbstract.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace corvane::corutiltools;
using corvane::test::RecordingObserver;
using testing::ElementsAre;
using testing::IsEmpty;

// Counts the calls that the base makes, and opens what models use to report.
class CountingModel : public ListModelAbstract<int> {
public:
    unsigned long size() const override { return items.size(); }
    std::string displayString(unsigned long index) const override {
        return std::to_string(items.at(index));
    }
    const int& data(unsigned long index) const override { return items.at(index); }
    void rebuildModel() override { ++rebuilds; }
    void freeMemory() override { ++releases; }

    using ListModelAbstract<int>::notifyObserversOfChange;
    using ListModelAbstract<int>::notifyOfChange;
    using ListModelAbstract<int>::notifyOfReset;

    std::vector<int> items;
    int rebuilds = 0;
    int releases = 0;
};

const ChangeInfo_s inserted{ListModelGenericInterface::ItemsInserted, {0, 1}};
const ChangeInfo_s removed{ListModelGenericInterface::ItemsRemoved, {3}};
const ChangeInfo_s changed{ListModelGenericInterface::ItemsChanged, {2}};
const ChangeInfo_s reset{ListModelGenericInterface::ModelReset, {}};

TEST(ListModelAbstract, fixesTheNumbersOfTheKindsOfChange) {
    EXPECT_EQ(ListModelGenericInterface::ItemsInserted, 0);
    EXPECT_EQ(ListModelGenericInterface::ItemsRemoved, 1);
    EXPECT_EQ(ListModelGenericInterface::ItemsChanged, 2);
    EXPECT_EQ(ListModelGenericInterface::ModelReset, 3);
    EXPECT_EQ(sizeof(ListModelGenericInterface::ChangeType_e), 4u);
}

TEST(ListModelAbstract, deliversAChangeToEveryObserver) {
    CountingModel model;
    RecordingObserver first;
    RecordingObserver second;
    model.addObserver(first);
    model.addObserver(second);
    model.notifyOfChange(inserted);
    model.notifyOfChange(removed);
    EXPECT_THAT(first.changes, ElementsAre(inserted, removed));
    EXPECT_THAT(second.changes, ElementsAre(inserted, removed));
}

TEST(ListModelAbstract, dropsChangesThatNobodyObserves) {
    CountingModel model;
    model.notifyOfChange(inserted);
    RecordingObserver observer;
    model.addObserver(observer);
    EXPECT_THAT(observer.changes, IsEmpty());
    model.notifyObserversOfChange();
    EXPECT_THAT(observer.changes, IsEmpty());
    model.notifyOfChange(changed);
    EXPECT_THAT(observer.changes, ElementsAre(changed));
}

TEST(ListModelAbstract, buildsTheModelForItsFirstObserverOnly) {
    CountingModel model;
    RecordingObserver first;
    RecordingObserver second;
    EXPECT_EQ(model.rebuilds, 0);
    model.addObserver(first);
    EXPECT_EQ(model.rebuilds, 1);
    model.addObserver(second);
    EXPECT_EQ(model.rebuilds, 1);
    model.removeObserver(first);
    model.removeObserver(second);
    model.addObserver(first);
    EXPECT_EQ(model.rebuilds, 2);
}

TEST(ListModelAbstract, freesMemoryWhenTheLastObserverHasGone) {
    CountingModel model;
    RecordingObserver first;
    RecordingObserver second;
    model.addObserver(first);
    model.addObserver(second);
    model.removeObserver(first);
    EXPECT_EQ(model.releases, 0);
    model.removeObserver(second);
    EXPECT_EQ(model.releases, 1);
}

TEST(ListModelAbstract, freesNothingForAStranger) {
    CountingModel model;
    RecordingObserver stranger;
    model.removeObserver(stranger);
    EXPECT_EQ(model.releases, 0);
}

TEST(ListModelAbstract, countsAnObserverOnce) {
    CountingModel model;
    RecordingObserver observer;
    model.addObserver(observer);
    model.addObserver(observer);
    model.notifyOfChange(changed);
    EXPECT_THAT(observer.changes, ElementsAre(changed));
    model.removeObserver(observer);
    model.notifyOfChange(changed);
    EXPECT_THAT(observer.changes, ElementsAre(changed));
}

TEST(ListModelAbstract, rebuildsBeforeItDeliversAReset) {
    CountingModel model;
    RecordingObserver observer;
    model.addObserver(observer);
    int rebuildsSeen = 0;
    observer.reaction = [&] { rebuildsSeen = model.rebuilds; };
    model.notifyOfReset();
    EXPECT_THAT(observer.changes, ElementsAre(reset));
    EXPECT_EQ(rebuildsSeen, 2);
    model.notifyOfChange(changed);
    EXPECT_THAT(observer.changes, ElementsAre(reset, changed));
    EXPECT_EQ(model.rebuilds, 2);
}

TEST(ListModelAbstract, keepsAResetThatNobodyObservedAndDropsChangesUntilItIsDelivered) {
    CountingModel model;
    model.notifyOfReset();
    RecordingObserver observer;
    model.addObserver(observer);
    model.notifyOfChange(changed);
    EXPECT_THAT(observer.changes, IsEmpty());
    model.notifyObserversOfChange();
    EXPECT_THAT(observer.changes, ElementsAre(reset));
    model.notifyOfChange(changed);
    EXPECT_THAT(observer.changes, ElementsAre(reset, changed));
}

TEST(ListModelAbstract, deliversOneResetForSeveralUnobservedOnes) {
    CountingModel model;
    model.notifyOfReset();
    model.notifyOfReset();
    RecordingObserver observer;
    model.addObserver(observer);
    model.notifyOfReset();
    EXPECT_THAT(observer.changes, ElementsAre(reset));
}

TEST(ListModelAbstract, forgetsWhatIsPendingWhenAnObserverThrows) {
    CountingModel model;
    RecordingObserver observer;
    model.addObserver(observer);
    observer.reaction = [] { throw std::runtime_error("refused"); };
    EXPECT_THROW(model.notifyOfReset(), std::runtime_error);
    observer.reaction = nullptr;
    // Neither the reset nor its flag is left over.
    model.notifyOfChange(changed);
    EXPECT_THAT(observer.changes, ElementsAre(reset, changed));
}

TEST(ListModelAbstract, dropsAChangeMadeDuringADeliveryThatThrows) {
    CountingModel model;
    RecordingObserver observer;
    model.addObserver(observer);
    observer.reaction = [&] {
        model.notifyOfChange(removed);
        throw std::runtime_error("refused");
    };
    EXPECT_THROW(model.notifyOfChange(inserted), std::runtime_error);
    observer.reaction = nullptr;
    model.notifyObserversOfChange();
    EXPECT_THAT(observer.changes, ElementsAre(inserted));
}

TEST(ListModelAbstract, deliversAChangeThatAnObserverMakesOnceToAll) {
    CountingModel model;
    RecordingObserver first;
    RecordingObserver second;
    model.addObserver(first);
    model.addObserver(second);
    const auto answerOnce = [&](RecordingObserver& observer) {
        return [&] {
            observer.reaction = nullptr;
            model.notifyOfChange(changed);
        };
    };
    first.reaction = answerOnce(first);
    second.reaction = answerOnce(second);
    model.notifyOfChange(inserted);
    EXPECT_THAT(first.changes, ElementsAre(inserted, changed, changed));
    EXPECT_THAT(second.changes, ElementsAre(inserted, changed, changed));
}

TEST(ListModelAbstract, letsAnObserverLeaveWhileItIsTold) {
    CountingModel model;
    RecordingObserver first;
    RecordingObserver second;
    model.addObserver(first);
    model.addObserver(second);
    const auto leave = [&] {
        model.removeObserver(first);
        model.removeObserver(second);
    };
    first.reaction = leave;
    second.reaction = leave;
    model.notifyOfChange(inserted);
    // Whichever was told first took the other one with it.
    EXPECT_EQ(first.changes.size() + second.changes.size(), 1u);
    EXPECT_EQ(model.releases, 1);
}

TEST(ListModelAbstract, endsOneBeyondTheFirstIndexPastTheLastItem) {
    CountingModel model;
    EXPECT_EQ(model.end(), 1u);
    model.items = {5, 6, 7};
    EXPECT_EQ(model.end(), 4u);
}

TEST(ListModelAbstract, findsTheFirstEqualItem) {
    CountingModel model;
    model.items = {5, 6, 7, 6};
    EXPECT_EQ(model.indexForData(5), 0u);
    EXPECT_EQ(model.indexForData(6), 1u);
    EXPECT_EQ(model.indexForData(8), model.size() + 1);
}

TEST(ListModelAbstract, ignoresWhatAModelDoesNotSupport) {
    CountingModel model;
    RecordingObserver observer;
    model.addObserver(observer);
    model.items = {5, 6};
    model.setData(0, 9);
    model.insertItem(0, 9);
    model.insertItems(0, {9, 9});
    model.removeItem(0);
    model.removeItems(0, 2);
    EXPECT_THAT(model.items, ElementsAre(5, 6));
    EXPECT_THAT(observer.changes, IsEmpty());
}

TEST(ListModelAbstract, hasAMessageForAnEmptyModel) {
    EXPECT_EQ(CountingModel().emptyModelMessage(), "No items available.");
}

} // namespace
