// The plain records.
#include "addon/model/Records.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane::corutiltools {
namespace {

const KeyFrame_s sample{View(1, 2, 3, 4, 5, 6, 7), "View 1", 30, 0.5};

TEST(KeyFrame, equalsACopy) {
    const KeyFrame_s copy = sample;
    EXPECT_EQ(copy, sample);
}

TEST(KeyFrame, differenceInAnyOneFieldMakesUnequal) {
    KeyFrame_s other = sample;
    other.view.setWidth(8);
    EXPECT_FALSE(other == sample);

    other = sample;
    other.name = "View 2";
    EXPECT_FALSE(other == sample);

    other = sample;
    other.frameCount = 31;
    EXPECT_FALSE(other == sample);

    other = sample;
    other.solutionTime = 0.25;
    EXPECT_FALSE(other == sample);
}

TEST(KeyFrame, withNotANumberIsUnequalToItself) {
    KeyFrame_s keyFrame = sample;
    keyFrame.solutionTime = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(keyFrame == keyFrame);
}

TEST(Records, enumerationsHaveFixedValues) {
    EXPECT_EQ(static_cast<int>(TimeAnimationOperation_Forward), 0);
    EXPECT_EQ(static_cast<int>(TimeAnimationOperation_Loop), 1);
    EXPECT_EQ(static_cast<int>(TimeAnimationOperation_Bounce), 2);
    EXPECT_EQ(static_cast<int>(TimeAnimationOperation_AsCaptured), 3);
    EXPECT_EQ(static_cast<int>(Destination_OnScreen), 0);
    EXPECT_EQ(static_cast<int>(Destination_ToFile), 1);
    EXPECT_EQ(static_cast<int>(MacroOption_Record), 0);
    EXPECT_EQ(static_cast<int>(MacroOption_DoNotRecord), 1);
    EXPECT_EQ(sizeof(TimeAnimationOperation_e), 4u);
    EXPECT_EQ(sizeof(Destination_e), 4u);
    EXPECT_EQ(sizeof(MacroOption_e), 4u);
}

} // namespace
} // namespace corvane::corutiltools
