// A list of the host in step with its model.
#include "addon/ui/controls/ListView.h"

#include "tests/unit/addon/UiTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

using ChangeInfo_s = ListModelGenericInterface::ChangeInfo_s;

// Words, and what happens to them.
class WordModel : public ListModelAbstract<std::string> {
public:
    explicit WordModel(std::vector<std::string> words = {}) : m_words(std::move(words)) {}
    ~WordModel() override {
        if (isGone) {
            *isGone = true;
        }
    }

    unsigned long size() const override { return m_words.size(); }
    std::string displayString(unsigned long index) const override { return m_words.at(index); }
    const std::string& data(unsigned long index) const override { return m_words.at(index); }
    void freeMemory() override { ++timesFreed; }

    void insert(const std::vector<unsigned long>& indices, const std::string& word) {
        for (const unsigned long index : indices) {
            m_words.insert(m_words.begin() + static_cast<long>(index), word);
        }
        notifyOfChange({ItemsInserted, indices});
    }
    // Indices in any order.
    void remove(const std::vector<unsigned long>& indices) {
        const std::set<unsigned long, std::greater<>> descending(indices.begin(), indices.end());
        for (const unsigned long index : descending) {
            m_words.erase(m_words.begin() + static_cast<long>(index));
        }
        notifyOfChange({ItemsRemoved, indices});
    }
    void change(unsigned long index, const std::string& word) {
        m_words.at(index) = word;
        notifyOfChange({ItemsChanged, {index}});
    }
    void replaceAll(const std::vector<std::string>& words) {
        m_words = words;
        notifyOfReset();
    }
    void tell(const ChangeInfo_s& change) { notifyOfChange(change); }

    bool* isGone = nullptr;
    int timesFreed = 0;

private:
    std::vector<std::string> m_words;
};

class ListViewTest : public ControlTest {
protected:
    ListViewTest()
        : list(CorGUIListAdd(dialog, 0, 0, 100, 100, TRUE, nullptr)),
          view(list, ListViewInterface::SelectionModel_Multi) {}

    void show(WordModel& model) {
        view.setModel(model);
        host.clearCalls();
    }

    std::vector<std::string> rows() { return window().list().rows(); }
    std::vector<long> selection() { return window().list().selection(); }
    bool isSensitive() { return window().list().isSensitive(); }

    // Calls without locks, the list's handle and the selection's way there and back.
    std::vector<std::string> listCalls(const std::string& operation) {
        return host.callsOf("CorGUIList" + operation);
    }

    const int list;
    WordModel words{{"a", "b", "c", "d", "e"}};
    WordModel none;
    ListView view;
};

std::string call(const std::string& operation, int list, const std::string& rest) {
    return "CorGUIList" + operation + "(" + std::to_string(list) + rest + ")";
}

TEST_F(ListViewTest, showsItsModelAtOnce) {
    view.setModel(words);
    EXPECT_THAT(rows(), ElementsAre("a", "b", "c", "d", "e"));
    EXPECT_TRUE(isSensitive());
    EXPECT_EQ(view.model(), &words);
}

TEST_F(ListViewTest, showsAnEmptyModelAsItsMessage) {
    view.setModel(none);
    EXPECT_THAT(rows(), ElementsAre("No items available."));
    EXPECT_FALSE(isSensitive());
}

TEST_F(ListViewTest, wakesUpWithTheFirstItem) {
    show(none);
    none.insert({0}, "a");
    EXPECT_THAT(rows(), ElementsAre("a"));
    EXPECT_TRUE(isSensitive());
}

TEST_F(ListViewTest, fillsInThisOrder) {
    WordModel model({"a"});
    host.clearCalls();
    view.setModel(model);
    const std::string handle = std::to_string(list);
    EXPECT_THAT(host.calls(), testing::IsSupersetOf({"CorGUISetSensitivity(" + handle + ", TRUE)",
                                                     call("DeleteAllItems", list, ""),
                                                     call("AppendItem", list, ", \"a\"")}));
    EXPECT_EQ(host.calls().front(), lockStart);
    EXPECT_EQ(host.calls().at(1), "CorGUISetSensitivity(" + handle + ", TRUE)");
    EXPECT_EQ(host.calls().back(), lockFinish);
    view.setModel(none);
}

TEST_F(ListViewTest, appendsItemsAtTheEndAlone) {
    show(words);
    words.insert({5, 6}, "f");
    EXPECT_THAT(rows(), ElementsAre("a", "b", "c", "d", "e", "f", "f"));
    EXPECT_THAT(listCalls("Delete"), IsEmpty());
    EXPECT_EQ(host.count("CorGUIListAppendItem"), 2u);
}

TEST_F(ListViewTest, rebuildsForItemsInside) {
    show(words);
    words.insert({1}, "x");
    EXPECT_THAT(rows(), ElementsAre("a", "x", "b", "c", "d", "e"));
    EXPECT_EQ(host.count("CorGUIListDeleteAllItems"), 1u);
}

TEST_F(ListViewTest, rebuildsWhenOneOfManyItemsIsInside) {
    show(words);
    words.insert({5, 0}, "x");
    EXPECT_EQ(host.count("CorGUIListDeleteAllItems"), 1u);
    EXPECT_THAT(rows(), ElementsAre("x", "a", "b", "c", "d", "e", "x"));
}

TEST_F(ListViewTest, removesFromTheEndOn) {
    show(words);
    words.remove({1, 3});
    EXPECT_THAT(rows(), ElementsAre("a", "c", "e"));
    EXPECT_THAT(listCalls("DeleteItemAtPos"), ElementsAre(call("DeleteItemAtPos", list, ", 4"),
                                                          call("DeleteItemAtPos", list, ", 2")));
}

TEST_F(ListViewTest, keepsTheSelectedPlacesWhenItemsGo) {
    show(words);
    window().list().select({2, 3});
    words.remove({1, 2});
    EXPECT_THAT(rows(), ElementsAre("a", "d", "e"));
    EXPECT_THAT(selection(), ElementsAre(2, 3));
}

TEST_F(ListViewTest, dropsSelectedPlacesThatAreGone) {
    show(words);
    window().list().select({5});
    words.remove({4});
    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(ListViewTest, fallsAsleepWithTheLastItem) {
    show(words);
    words.remove({0, 1, 2, 3, 4});
    EXPECT_THAT(rows(), ElementsAre("No items available."));
    EXPECT_FALSE(isSensitive());
}

TEST_F(ListViewTest, replacesChangedItemsAndKeepsTheSelection) {
    show(words);
    window().list().select({1, 3});
    words.change(2, "z");
    EXPECT_THAT(rows(), ElementsAre("a", "b", "z", "d", "e"));
    EXPECT_THAT(selection(), ElementsAre(1, 3));
    EXPECT_THAT(listCalls("ReplaceItem"), ElementsAre(call("ReplaceItem", list, ", \"z\", 3")));
}

TEST_F(ListViewTest, rebuildsForAResetAndKeepsTheSelectedPlaces) {
    show(words);
    window().list().select({2, 5});
    words.replaceAll({"x", "y", "z"});
    EXPECT_THAT(rows(), ElementsAre("x", "y", "z"));
    EXPECT_THAT(selection(), ElementsAre(2));
}

TEST_F(ListViewTest, rebuildsForAnyOtherChange) {
    show(words);
    words.tell({static_cast<ListModelGenericInterface::ChangeType_e>(9), {}});
    EXPECT_EQ(host.count("CorGUIListDeleteAllItems"), 1u);
    EXPECT_EQ(host.count("CorGUIListAppendItem"), 5u);
}

TEST_F(ListViewTest, doesNotTouchTheListWhileSuspended) {
    show(words);
    view.suspendUpdates();
    words.insert({5}, "f");
    view.rebuildList();
    view.displayEmptyModelMessage();
    view.modelChanged({ListModelGenericInterface::ItemsRemoved, {0}});
    EXPECT_THAT(host.calls(), IsEmpty());
    view.resumeUpdates();
    EXPECT_THAT(rows(), ElementsAre("a", "b", "c", "d", "e", "f"));
}

TEST_F(ListViewTest, resumesOnlyWhenSuspended) {
    show(words);
    view.resumeUpdates();
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(ListViewTest, isNotToldAnythingWhileSuspended) {
    show(words);
    view.suspendUpdates();
    EXPECT_EQ(words.timesFreed, 1);
}

TEST_F(ListViewTest, withoutHandleWaitsForItAndForTheWordToResume) {
    host.clearCalls();
    ListView late(ListViewInterface::SelectionModel_Multi);
    EXPECT_EQ(late.guiId(), COR_HANDLE_NOT_CREATED);
    late.setModel(words);
    words.insert({5}, "f");
    words.remove({0});
    EXPECT_THAT(listCalls(""), IsEmpty());
    late.setGuiID(list);
    EXPECT_THAT(listCalls(""), IsEmpty());
    late.resumeUpdates();
    EXPECT_THAT(rows(), ElementsAre("b", "c", "d", "e", "f"));
}

TEST_F(ListViewTest, resumedWithoutHandleTouchesNothing) {
    host.clearCalls();
    ListView late(ListViewInterface::SelectionModel_Multi);
    late.setModel(words);
    late.resumeUpdates();
    words.insert({5}, "f");
    EXPECT_THAT(listCalls(""), IsEmpty());
}

TEST_F(ListViewTest, observesANewModelWhileSuspended) {
    view.suspendUpdates();
    view.setModel(words);
    view.setModel(none);
    EXPECT_EQ(words.timesFreed, 1);
    EXPECT_THAT(listCalls("AppendItem"), IsEmpty());
}

TEST_F(ListViewTest, ignoresTheModelThatItHas) {
    show(words);
    view.setModel(words);
    view.setModel(&words);
    EXPECT_THAT(host.calls(), IsEmpty());
}

TEST_F(ListViewTest, ownsAModelThatIsGivenByPointer) {
    bool isGone = false;
    {
        ListView owner(list, ListViewInterface::SelectionModel_Single);
        auto model = std::make_unique<WordModel>(std::vector<std::string>{"a"});
        model->isGone = &isGone;
        owner.setModel(model.release());
        EXPECT_FALSE(isGone);
    }
    EXPECT_TRUE(isGone);
}

TEST_F(ListViewTest, deletesAnOwnedModelWhenItGetsAnother) {
    bool isGone = false;
    auto model = std::make_unique<WordModel>();
    model->isGone = &isGone;
    view.setModel(model.release());
    view.setModel(words);
    EXPECT_TRUE(isGone);
    EXPECT_THAT(rows(), ElementsAre("a", "b", "c", "d", "e"));
}

TEST_F(ListViewTest, canGoWithoutAModel) {
    view.setModel(words);
    view.setModel(nullptr);
    EXPECT_EQ(view.model(), nullptr);
    EXPECT_EQ(words.timesFreed, 1);
    view.suspendUpdates();
    view.resumeUpdates();
}

TEST_F(ListViewTest, doesNotOwnAModelThatItFailedToShow) {
    WordModel model({"a"});
    host.throwAt("CorGUIListAppendItem");
    EXPECT_THROW(view.setModel(&model), std::runtime_error);
    view.setModel(none);
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(ListViewTest, leavesItsModelWhenItDies) {
    {
        ListView other(list, ListViewInterface::SelectionModel_Multi);
        other.setModel(words);
    }
    EXPECT_EQ(words.timesFreed, 1);
}

TEST_F(ListViewTest, hasTheSelectionModelOfItsKind) {
    view.setModel(words);
    view.selectionModel().setSelectedItems({4, 2});
    EXPECT_THAT(selection(), ElementsAre(3, 5));
    view.init(ListViewInterface::SelectionModel_Single);
    view.selectionModel().setSelectedItems({4, 2});
    EXPECT_THAT(selection(), ElementsAre(5));
    view.init(static_cast<ListViewInterface::SelectionModel_e>(7));
    view.selectionModel().setSelectedItems({4, 2});
    EXPECT_THAT(selection(), ElementsAre(3, 5));
}

TEST_F(ListViewTest, releasesItsLockWhereverTheHostThrows) {
    show(words);
    for (const char* const operation :
         {"CorGUISetSensitivity", "CorGUIListGetSelectedItems", "CorGUIListDeleteAllItems",
          "CorGUIListAppendItem", "CorGUIListDeselectAllItems", "CorGUIListSetSelectedItems"}) {
        host.throwAt(operation);
        EXPECT_THROW(view.rebuildList(), std::runtime_error) << operation;
        EXPECT_EQ(lockDepth(), 0) << operation;
    }
}

TEST_F(ListViewTest, isFilledInLinearTime) {
    WordModel many(std::vector<std::string>(2000, "word"));
    host.clearCalls();
    view.setModel(many);
    EXPECT_EQ(host.count("CorGUIListAppendItem"), 2000u);
    EXPECT_LT(host.calls().size(), 2000u + 30u);
    view.setModel(none);
}

} // namespace
