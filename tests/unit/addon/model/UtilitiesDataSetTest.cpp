// What the model asks of the host's data set and streamtraces.
#include "addon/model/Utilities.h"

#include "tests/support/HostTest.h"

#include <memory>

namespace corvane::test {
namespace {

using namespace corutiltools;
using testing::ElementsAre;
using testing::IsEmpty;

class DataSetQueriesTest : public HostTest {
protected:
    DataSetQueriesTest() { host.clearCalls(); }

    struct Zone {
        double time;
        long strand;
        bool enabled = true;
    };

    void setZones(const std::vector<Zone>& zones) {
        auto data = std::make_shared<host::DataSet>();
        data->blocks.push_back({"block", 3});
        for (const Zone& zone : zones) {
            data->zones.push_back({0, zone.time, zone.strand, zone.enabled});
        }
        host.frame().attachData(data);
    }

    // As many sets came as went.
    bool everySetIsFreed() {
        return host.count("CorUtilZoneGetEnabled") == host.count("CorUtilSetDealloc");
    }
};

TEST_F(DataSetQueriesTest, minimumAndMaximumSpanTheEnabledZones) {
    setZones({{3.0, 1}, {1.0, 1}, {2.0, 1}, {-9.0, 1, false}, {9.0, 1, false}});
    double minimum = 100.0;
    double maximum = -100.0;
    GetSolutionTimeMinMax(minimum, maximum);
    EXPECT_EQ(minimum, 1.0);
    EXPECT_EQ(maximum, 3.0);
    EXPECT_TRUE(everySetIsFreed());
}

TEST_F(DataSetQueriesTest, oneZoneIsBothMinimumAndMaximum) {
    setZones({{2.5, 0}});
    double minimum = 0.0;
    double maximum = 0.0;
    GetSolutionTimeMinMax(minimum, maximum);
    EXPECT_EQ(minimum, 2.5);
    EXPECT_EQ(maximum, 2.5);
}

TEST_F(DataSetQueriesTest, walksTheZonesAndFreesTheSet) {
    setZones({{3.0, 1}, {1.0, 1}});
    double minimum = 0.0;
    double maximum = 0.0;
    GetSolutionTimeMinMax(minimum, maximum);
    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilZoneGetEnabled(non-null)",
                            "CorUtilSetGetNextMember(non-null, 0)", "CorUtilZoneGetSolutionTime(1)",
                            "CorUtilSetGetNextMember(non-null, 1)", "CorUtilZoneGetSolutionTime(2)",
                            "CorUtilSetGetNextMember(non-null, 2)", "CorUtilSetDealloc(non-null)"));
}

TEST_F(DataSetQueriesTest, withoutEnabledZonesMinimumAndMaximumStay) {
    double minimum = 7.0;
    double maximum = 8.0;
    setZones({});
    GetSolutionTimeMinMax(minimum, maximum);
    setZones({{1.0, 1, false}});
    GetSolutionTimeMinMax(minimum, maximum);
    EXPECT_TRUE(everySetIsFreed());
    host.setData(nullptr);
    GetSolutionTimeMinMax(minimum, maximum);
    host.failNext("CorUtilZoneGetEnabled");
    GetSolutionTimeMinMax(minimum, maximum);
    EXPECT_EQ(minimum, 7.0);
    EXPECT_EQ(maximum, 8.0);
}

TEST_F(DataSetQueriesTest, freeTheSetWhenTheHostThrows) {
    setZones({{3.0, 1}, {1.0, 1}});
    double minimum = 0.0;
    double maximum = 0.0;
    host.throwAt("CorUtilZoneGetSolutionTime", 2);
    EXPECT_THROW(GetSolutionTimeMinMax(minimum, maximum), std::runtime_error);
    EXPECT_TRUE(everySetIsFreed());
    host.throwAt("CorUtilZoneGetStrandID");
    EXPECT_THROW(DataSetIsTransient(), std::runtime_error);
    EXPECT_TRUE(everySetIsFreed());
}

TEST_F(DataSetQueriesTest, dataAreTransientWithOneEnabledStrand) {
    setZones({{0.0, 0}, {0.0, -1}, {0.0, 4}});
    EXPECT_TRUE(DataSetIsTransient());
    EXPECT_TRUE(everySetIsFreed());
}

TEST_F(DataSetQueriesTest, dataAreNotTransientWithoutAStrand) {
    setZones({{0.0, 0}, {1.0, -1}});
    EXPECT_FALSE(DataSetIsTransient());
    setZones({{0.0, 1, false}});
    EXPECT_FALSE(DataSetIsTransient());
    setZones({});
    EXPECT_FALSE(DataSetIsTransient());
    EXPECT_TRUE(everySetIsFreed());
}

TEST_F(DataSetQueriesTest, stopAskingAtTheFirstStrand) {
    setZones({{0.0, 1}, {1.0, 1}, {2.0, 1}});
    EXPECT_TRUE(DataSetIsTransient());
    EXPECT_EQ(host.count("CorUtilZoneGetStrandID"), 1u);
}

TEST_F(DataSetQueriesTest, withoutDataNoZoneIsAskedFor) {
    host.setData(nullptr);
    host.clearCalls();
    EXPECT_FALSE(DataSetIsTransient());
    EXPECT_THAT(host.calls(), ElementsAre("CorUtilDataSetIsAvailable()"));
}

TEST_F(DataSetQueriesTest, takeNoLock) {
    setZones({{0.0, 1}});
    double minimum = 0.0;
    double maximum = 0.0;
    DataSetIsTransient();
    GetSolutionTimeMinMax(minimum, maximum);
    EXPECT_THAT(host.callsOf("CorUtilLock"), IsEmpty());
}

class StreamtraceTimingTest : public HostTest {
protected:
    host::StreamTimingStyle& timing() { return host.frame().style.streamTiming; }
};

TEST_F(StreamtraceTimingTest, isEnabledByMarkersOrDashes) {
    EXPECT_FALSE(StreamtraceTimingIsEnabled());
    timing().showMarkers = true;
    EXPECT_TRUE(StreamtraceTimingIsEnabled());
    timing().showDashes = true;
    EXPECT_TRUE(StreamtraceTimingIsEnabled());
    timing().showMarkers = false;
    EXPECT_TRUE(StreamtraceTimingIsEnabled());
}

TEST_F(StreamtraceTimingTest, asksForMarkersFirst) {
    host.clearCalls();
    StreamtraceTimingIsEnabled();
    EXPECT_THAT(
        host.calls(),
        ElementsAre(
            R"(CorUtilStyleGet("StreamAttributes","StreamTiming","ShowMarkers", IValue=non-null))",
            R"(CorUtilStyleGet("StreamAttributes","StreamTiming","ShowDashes", IValue=non-null))"));
}

TEST_F(StreamtraceTimingTest, takesWhatCannotBeReadForOff) {
    timing().showMarkers = true;
    host.failNext("CorUtilStyleGet");
    EXPECT_FALSE(StreamtraceTimingIsEnabled());
    timing().showDashes = true;
    host.failNext("CorUtilStyleGet");
    EXPECT_TRUE(StreamtraceTimingIsEnabled());
}

} // namespace
} // namespace corvane::test
