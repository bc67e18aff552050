// Strings and arrays that cross the boundary.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

#include <cstring>
#include <limits>

namespace corvane::test {
namespace {

using ::testing::IsEmpty;

class MemoryApiTest : public EmptyHostTest {};

TEST_F(MemoryApiTest, aStringIsEmptyAndHasRoomForItsNul) {
    char* text = CorUtilStringAlloc(5);
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(text, "");
    std::strcpy(text, "kites");
    CorUtilStringDealloc(&text);
    EXPECT_EQ(text, nullptr);
}

TEST_F(MemoryApiTest, aStringMayHaveNoRoom) {
    char* text = CorUtilStringAlloc(0);
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(text, "");
    CorUtilStringDealloc(&text);
}

TEST_F(MemoryApiTest, lengthsOutOfRangeAreMisuse) {
    host.expectMisuse("CorUtilStringAlloc: the length is out of range");
    EXPECT_EQ(CorUtilStringAlloc(-1), nullptr);
    EXPECT_EQ(CorUtilStringAlloc(std::numeric_limits<long>::max()), nullptr);
    EXPECT_EQ(host.misuse().size(), 2U);
}

TEST_F(MemoryApiTest, freeingNothingIsFine) {
    char* text = nullptr;
    void* array = nullptr;
    CorUtilStringDealloc(&text);
    CorUtilStringDealloc(nullptr);
    CorUtilArrayDealloc(&array);
    CorUtilArrayDealloc(nullptr);
}

TEST_F(MemoryApiTest, whatIsFreedTwiceIsMisuseAndHarmsNothing) {
    host.expectMisuse("CorUtilStringDealloc: freed before, or not from the host");
    char* text = CorUtilStringAlloc(5);
    char* copy = text;
    CorUtilStringDealloc(&text);
    CorUtilStringDealloc(&copy);
    EXPECT_EQ(copy, nullptr);
    EXPECT_EQ(host.misuse().size(), 1U);
}

TEST_F(MemoryApiTest, whatIsNotFromTheHostIsLeftAlone) {
    host.expectMisuse("CorUtilStringDealloc: freed before, or not from the host");
    host.expectMisuse("CorUtilArrayDealloc: freed before, or not from the host");
    char own[] = "mine";
    char* text = own;
    void* array = own;
    CorUtilStringDealloc(&text);
    CorUtilArrayDealloc(&array);
    EXPECT_STREQ(own, "mine");
    EXPECT_EQ(array, nullptr);
}

TEST_F(MemoryApiTest, memoryIsNotTracedAndCanBeMadeToRunOut) {
    host.failNext("CorUtilStringAlloc");
    EXPECT_EQ(CorUtilStringAlloc(5), nullptr);
    char* text = CorUtilStringAlloc(5);
    EXPECT_NE(text, nullptr);
    CorUtilStringDealloc(&text);
    EXPECT_THAT(host.calls(), IsEmpty());
}

} // namespace
} // namespace corvane::test
