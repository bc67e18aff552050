// Tests of the ordered list of strings.
#include "hostapi/toolbox/StringList.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace corvane::toolbox {
namespace {

TEST(StringListTest, isEmptyAtFirst) {
    EXPECT_EQ(StringList().count(), 0);
}

TEST(StringListTest, keepsOrderAndDuplicatesAndCountsFromOne) {
    StringList list;
    list.append("ThreeDView");
    list.append("X");
    list.append("X");

    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.string(1), "ThreeDView");
    EXPECT_EQ(list.string(2), "X");
    EXPECT_EQ(list.string(3), "X");
}

TEST(StringListTest, keepsEmptyStrings) {
    StringList list;
    list.append("");

    ASSERT_EQ(list.count(), 1);
    EXPECT_EQ(list.string(1), "");
}

TEST(StringListTest, refusesPositionsOutside) {
    StringList list;
    list.append("only");

    EXPECT_THROW(list.string(0), std::out_of_range);
    EXPECT_THROW(list.string(2), std::out_of_range);
    EXPECT_THROW(list.string(-1), std::out_of_range);
}

} // namespace
} // namespace corvane::toolbox
