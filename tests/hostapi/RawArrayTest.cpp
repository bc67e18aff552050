// Tests of the array for host calls that take a pointer and a count.
#include "hostapi/RawArray.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(RawArrayTest, isEmptyAtFirst) {
    const RawArray<long> array;

    EXPECT_TRUE(array.empty());
    EXPECT_EQ(array.size(), 0u);
}

TEST(RawArrayTest, sizedArrayHoldsZeros) {
    const RawArray<int> array(3);

    ASSERT_EQ(array.size(), 3u);
    for (std::size_t i = 0; i < array.size(); ++i) {
        EXPECT_EQ(array[i], 0);
    }
}

TEST(RawArrayTest, appendsBehindWhatIsThere) {
    RawArray<long> array(1);
    array.append(7);
    array.append(9);

    ASSERT_EQ(array.size(), 3u);
    EXPECT_EQ(array[0], 0);
    EXPECT_EQ(array[1], 7);
    EXPECT_EQ(array[2], 9);
}

TEST(RawArrayTest, dataIsOneBlockInOrder) {
    RawArray<long> array;
    for (long value = 1; value <= 100; ++value) {
        array.append(value);
    }

    const RawArray<long>& readOnly = array;
    for (std::size_t i = 0; i < array.size(); ++i) {
        EXPECT_EQ(array.data()[i], static_cast<long>(i) + 1);
        EXPECT_EQ(&readOnly.data()[i], &array[i]);
    }
}

TEST(RawArrayTest, elementsCanBeWritten) {
    RawArray<int> array(2);
    array[0] = 4;
    array.data()[1] = 5;

    EXPECT_EQ(array[0], 4);
    EXPECT_EQ(array[1], 5);
}

TEST(RawArrayTest, copyIsIndependent) {
    RawArray<long> original;
    original.append(1);
    RawArray<long> copy = original;
    copy[0] = 2;

    EXPECT_EQ(original[0], 1);
}

TEST(RawArrayTest, clearedArrayCanBeFilledAgain) {
    RawArray<long> array(5);
    array.clear();
    EXPECT_TRUE(array.empty());

    array.append(3);
    ASSERT_EQ(array.size(), 1u);
    EXPECT_EQ(array[0], 3);
}

} // namespace
} // namespace corvane
