// Columns and sums of a key frame list.
#include "addon/model/Utilities.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace corvane::corutiltools {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using KeyFrames = std::vector<KeyFrame_s>;
using Counts = std::vector<unsigned long>;

KeyFrames withCounts(const Counts& counts) {
    KeyFrames keyFrames;
    for (unsigned long count : counts) {
        const double position = static_cast<double>(keyFrames.size());
        keyFrames.push_back(
            KeyFrame_s{View(position, 0, 0, 0, 0, 0, 1), "", count, position / 2.0});
    }
    return keyFrames;
}

TEST(Columns, keepTheOrderOfTheKeyFrames) {
    const KeyFrames keyFrames = withCounts({4, 5, 6});

    std::vector<View> views;
    ExtractViews(keyFrames, views);
    EXPECT_THAT(views, ElementsAre(View(0, 0, 0, 0, 0, 0, 1), View(1, 0, 0, 0, 0, 0, 1),
                                   View(2, 0, 0, 0, 0, 0, 1)));

    Counts counts;
    ExtractFrameCounts(keyFrames, counts);
    EXPECT_THAT(counts, ElementsAre(4, 5, 6));

    std::vector<double> times;
    ExtractSolutionTimes(keyFrames, times);
    EXPECT_THAT(times, ElementsAre(0.0, 0.5, 1.0));
}

TEST(Columns, replaceWhatTheOutputHeld) {
    const KeyFrames keyFrames = withCounts({4, 5});
    Counts counts{1, 2, 3};
    ExtractFrameCounts(keyFrames, counts);
    EXPECT_THAT(counts, ElementsAre(4, 5));
    std::vector<double> times{9.0, 9.0, 9.0};
    ExtractSolutionTimes(keyFrames, times);
    EXPECT_THAT(times, ElementsAre(0.0, 0.5));
}

TEST(Columns, ofAnEmptyListReleaseWhatTheOutputHeld) {
    std::vector<View> views(100);
    ExtractViews({}, views);
    EXPECT_THAT(views, IsEmpty());
    EXPECT_EQ(views.capacity(), 0u);
}

TEST(FrameCountsForIndices, followTheIndices) {
    Counts counts{99};
    ExtractFrameCountsForIndices(withCounts({4, 5, 6}), {2, 0, 2}, counts);
    EXPECT_THAT(counts, ElementsAre(6, 4, 6));
}

TEST(FrameCountsForIndices, withoutIndicesAreNone) {
    Counts counts{99};
    ExtractFrameCountsForIndices(withCounts({4, 5, 6}), {}, counts);
    EXPECT_THAT(counts, IsEmpty());
}

TEST(FrameCountsForIndices, beyondTheListLeaveTheOutputAlone) {
    Counts counts{7, 8};
    EXPECT_THROW(ExtractFrameCountsForIndices(withCounts({4, 5, 6}), {0, 3}, counts),
                 std::out_of_range);
    EXPECT_THAT(counts, ElementsAre(7, 8));
}

TEST(TotalFrameCount, leavesOutTheLastKeyFramesOwnCount) {
    EXPECT_EQ(GetTotalFrameCount(withCounts({10, 20, 99})), 31u);
}

TEST(TotalFrameCount, ofOneKeyFrameIsOne) {
    EXPECT_EQ(GetTotalFrameCount(withCounts({30})), 1u);
}

TEST(TotalFrameCount, withoutStepsIsOne) {
    EXPECT_EQ(GetTotalFrameCount(withCounts({0, 5})), 1u);
}

TEST(TotalFrameCount, staysAtTheLargestNumber) {
    const unsigned long largest = std::numeric_limits<unsigned long>::max();
    EXPECT_EQ(GetTotalFrameCount(withCounts({largest - 1, 1})), largest);
    EXPECT_EQ(GetTotalFrameCount(withCounts({largest, 1})), largest);
    EXPECT_EQ(GetTotalFrameCount(withCounts({largest / 2 + 1, largest / 2 + 1, 5, 1})), largest);
}

} // namespace
} // namespace corvane::corutiltools
