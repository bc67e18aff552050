// The solution time as text.
#include "host/scene/annotations/TimeText.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

host::DataSet dataWithTimes(const std::vector<double>& times) {
    host::DataSet data;
    for (const double time : times) {
        data.zones.push_back({0, time, 1, true});
    }
    return data;
}

} // namespace

TEST(TimeText, hasTheDecimalsOfTheData) {
    EXPECT_EQ(scene::timeText(3.6, dataWithTimes({0.0, 0.6, 1.2})), "t = 3.6");
    EXPECT_EQ(scene::timeText(3.0, dataWithTimes({0.0, 0.6, 1.2})), "t = 3.0");
    EXPECT_EQ(scene::timeText(3.0, dataWithTimes({0.0, 1.0, 2.0})), "t = 3");
    EXPECT_EQ(scene::timeText(0.25, dataWithTimes({0.0, 0.25})), "t = 0.25");
    EXPECT_EQ(scene::timeText(7.0, dataWithTimes({})), "t = 7");
}

TEST(TimeText, roundsTimesBetweenTheSteps) {
    EXPECT_EQ(scene::timeText(3.6499, dataWithTimes({0.0, 0.6})), "t = 3.6");
    EXPECT_EQ(scene::timeText(1.0 / 3.0, dataWithTimes({1.0 / 3.0})), "t = 0.333333");
}

} // namespace corvane::test
