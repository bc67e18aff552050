// Solution times of the key frame list, which come from the host.
#include "tests/unit/addon/lists/RecordingObserver.h"

#include "addon/model/ListModelKeyFrame.h"
#include "tests/support/HostTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class ListModelKeyFrameTimesTest : public HostTest {
protected:
    // Zones of one strand.
    void giveDataTheTimes(const std::vector<double>& times) {
        const auto data = makeStaticData();
        data->zones.clear();
        for (const double time : times) {
            data->zones.push_back({.block = 0, .solutionTime = time, .strand = 1});
        }
        host.setData(data);
        host.clearCalls();
    }

    void giveListTheFrameCounts(const std::vector<unsigned long>& counts) {
        std::vector<KeyFrame_s> keyFrames;
        for (const unsigned long count : counts) {
            keyFrames.push_back({View(), "x", count, -1.0});
        }
        model.setDataList(keyFrames);
        model.addObserver(observer);
        model.setDataList(keyFrames);
        observer.changes.clear();
    }

    std::vector<double> times() const {
        std::vector<double> result;
        for (const KeyFrame_s& keyFrame : model.dataList()) {
            result.push_back(keyFrame.solutionTime);
        }
        return result;
    }

    ListModelKeyFrame model;
    RecordingObserver observer;
};

TEST_F(ListModelKeyFrameTimesTest, areSpreadOverTheFlight) {
    giveDataTheTimes({0.0, 1.5, 3.0});
    giveListTheFrameCounts({10, 20, 5});
    RedistributeSolutionTimes(model);
    EXPECT_THAT(times(), ElementsAre(0.0, 1.0, 3.0));
    EXPECT_THAT(observer.changes, IsEmpty());
}

TEST_F(ListModelKeyFrameTimesTest, beginAtTheFirstTimeOfTheData) {
    giveDataTheTimes({5.0, 4.0, 7.0});
    giveListTheFrameCounts({1, 2, 1, 99});
    RedistributeSolutionTimes(model);
    EXPECT_THAT(times(), ElementsAre(4.0, 4.75, 6.25, 7.0));
}

TEST_F(ListModelKeyFrameTimesTest, areZeroWithoutData) {
    host.setData(nullptr);
    giveListTheFrameCounts({10, 20});
    RedistributeSolutionTimes(model);
    EXPECT_THAT(times(), Each(0.0));
}

TEST_F(ListModelKeyFrameTimesTest, areNoNumberForASingleKeyFrame) {
    for (const std::vector<double>& dataTimes : {std::vector{1.0, 2.0}, std::vector{1.0}}) {
        giveDataTheTimes(dataTimes);
        giveListTheFrameCounts({10});
        RedistributeSolutionTimes(model);
        EXPECT_TRUE(std::isnan(model.solutionTime(0)));
    }
}

TEST_F(ListModelKeyFrameTimesTest, ofAnEmptyListNeedNoSpreading) {
    RedistributeSolutionTimes(model);
    EXPECT_EQ(model.size(), 0u);
}

TEST_F(ListModelKeyFrameTimesTest, readTheSizeOnEveryStep) {
    class ListeningModel : public ListModelKeyFrame {
    public:
        unsigned long size() const override {
            ++calls;
            return ListModelKeyFrame::size();
        }
        mutable int calls = 0;
    };
    ListeningModel listening;
    listening.setDataList({{View(), "a", 1, 0}, {View(), "b", 1, 0}, {View(), "c", 1, 0}});
    listening.calls = 0;
    RedistributeSolutionTimes(listening);
    EXPECT_GE(listening.calls, 4);
}

TEST_F(ListModelKeyFrameTimesTest, areTakenFromTheHostByAnUpdate) {
    giveListTheFrameCounts({10, 20});
    host.session().setSolutionTime(1.25);
    host.clearCalls();
    const View view(1, 2, 3, 4, 5, 6, 7);
    model.update(1, view);
    EXPECT_EQ(model.data(1), (KeyFrame_s{view, "x", 20, 1.25}));
    EXPECT_EQ(model.data(0), (KeyFrame_s{View(), "x", 10, -1.0}));
    EXPECT_THAT(observer.changes, IsEmpty());
    EXPECT_THAT(host.calls(), ElementsAre("CorUtilSolutionTimeGetCurrent()"));
}

TEST_F(ListModelKeyFrameTimesTest, areNotAskedForByAnUpdateOfNoKeyFrame) {
    EXPECT_THROW(model.update(0, View()), std::out_of_range);
    EXPECT_THAT(host.calls(), IsEmpty());
}

} // namespace
