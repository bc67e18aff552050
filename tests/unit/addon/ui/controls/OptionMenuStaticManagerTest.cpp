// An option menu of the host over a fixed table.
#include "addon/ui/controls/OptionMenuStaticManager.h"

#include "tests/unit/addon/UiTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;

const PreMappedValue<ExportFormat_e> rowsOfTable[] = {
    {"AVI", ExportFormat_AVI}, {"WMV", ExportFormat_WMV}, {"RM", ExportFormat_RasterMetafile}};

class OptionMenuTest : public ControlTest {
protected:
    OptionMenuTest() : manager(rowsOfTable, 3) {
        const char* const items[] = {" "};
        menu = CorGUIOptionMenuAdd(dialog, 0, 0, 100, 100, items, 1, nullptr);
        manager.setGuiID(menu);
    }

    MemoryOptionMenu shown() { return window().optionMenu(); }

    OptionMenuStaticManager<ExportFormat_e> manager;
    int menu;
};

TEST_F(OptionMenuTest, isFilledInTableOrder) {
    host.clearCalls();
    manager.fill();
    const std::string handle = std::to_string(menu);
    EXPECT_THAT(host.calls(),
                ElementsAre(lockStart, "CorGUIOptionMenuDeleteAllItems(" + handle + ")",
                            "CorGUIOptionMenuAppendItem(" + handle + ", \"AVI\")",
                            "CorGUIOptionMenuAppendItem(" + handle + ", \"WMV\")",
                            "CorGUIOptionMenuAppendItem(" + handle + ", \"RM\")", lockFinish));
    EXPECT_THAT(shown().items(), ElementsAre("AVI", "WMV", "RM"));
}

TEST_F(OptionMenuTest, keepsTheChoiceWhenItIsFilledAgain) {
    manager.fill();
    shown().choose("WMV");
    manager.fill();
    EXPECT_EQ(manager.value(), ExportFormat_WMV);
}

TEST_F(OptionMenuTest, tellsTheChosenValue) {
    manager.fill();
    EXPECT_EQ(manager.value(), ExportFormat_AVI);
    shown().choose(3);
    EXPECT_EQ(manager.value(), ExportFormat_RasterMetafile);
}

TEST_F(OptionMenuTest, refusesToTellAnItemOutsideOfItsTable) {
    CorGUIOptionMenuDeleteAllItems(menu);
    EXPECT_THROW(manager.value(), std::out_of_range);
    manager.fill();
    CorGUIOptionMenuAppendItem(menu, "stranger");
    shown().choose("stranger");
    EXPECT_THROW(manager.value(), std::out_of_range);
    EXPECT_EQ(lockDepth(), 0);
}

TEST_F(OptionMenuTest, choosesAValue) {
    manager.fill();
    manager.setValue(ExportFormat_RasterMetafile);
    EXPECT_EQ(shown().chosen(), 3);
}

TEST_F(OptionMenuTest, leavesTheChoiceForAnUnknownValue) {
    manager.fill();
    shown().choose(2);
    manager.setValue(ExportFormat_MPEG4);
    EXPECT_EQ(shown().chosen(), 2);
}

TEST_F(OptionMenuTest, choosesByNumber) {
    manager.fill();
    manager.setNumber(22);
    EXPECT_EQ(shown().chosen(), 2);
    for (const long stranger : {21L, -1L, 99L, 1L << 40}) {
        manager.setNumber(stranger);
    }
    EXPECT_EQ(shown().chosen(), 2);
}

TEST_F(OptionMenuTest, knowsItsLabels) {
    EXPECT_EQ(manager.getDisplayString(ExportFormat_WMV), "WMV");
    try {
        manager.getDisplayString(ExportFormat_MPEG4);
        FAIL() << "has a label";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "Error in OptionMenuStaticManager::getDisplayString:\n"
                                   "The requested item does not exist in the model.");
    }
}

} // namespace
