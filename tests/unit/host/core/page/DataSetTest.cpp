// Tests of variables by name and of the zones of a solution time.
#include "host/core/page/DataSet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Zone zone(long strand, double time, bool enabled = true) {
    Zone z;
    z.strand = strand;
    z.solutionTime = time;
    z.enabled = enabled;
    return z;
}

TEST(DataSetTest, findsVariablesByTheirExactName) {
    DataSet data;
    data.variables = {{"p", 1, 0, 1}, {"U", 3, 0, 2}};
    ASSERT_NE(data.findVariable("U"), nullptr);
    EXPECT_EQ(data.findVariable("U")->maximum, 2);
    EXPECT_EQ(data.findVariable("u"), nullptr);
    EXPECT_EQ(data.findVector("p"), nullptr);
    EXPECT_EQ(data.findVector("U"), data.findVariable("U"));
}

TEST(DataSetTest, quantitiesAreArraysAndComponentsOfVectors) {
    DataSet data;
    data.variables = {{"p", 1, 0, 1}, {"U", 3, 0, 2}, {"odd:X", 1, 0, 1}, {"a:b", 3, 0, 1}};
    for (const char* name : {"p", "U", "U:X", "U:Y", "U:Z", "odd:X", "a:b", "a:b:Z"}) {
        EXPECT_TRUE(data.hasQuantity(name)) << name;
    }
    for (const char* name : {"", "q", "p:X", "U:x", "U:W", "U:", ":X", "odd:X:X"}) {
        EXPECT_FALSE(data.hasQuantity(name)) << name;
    }
}

TEST(DataSetTest, isTransientWithAnEnabledStrand) {
    DataSet data;
    EXPECT_FALSE(data.isTransient());
    data.zones = {zone(0, 1), zone(1, 2, false)};
    EXPECT_FALSE(data.isTransient());
    data.zones.push_back(zone(1, 3));
    EXPECT_TRUE(data.isTransient());
}

TEST(ZonesAtTime, takesTheLatestZoneNotAboveTheTime) {
    DataSet data;
    data.zones = {zone(1, 0), zone(1, 1), zone(1, 2)};
    EXPECT_THAT(zonesAtTime(data, 0.0), ElementsAre(0));
    EXPECT_THAT(zonesAtTime(data, 0.999), ElementsAre(0));
    EXPECT_THAT(zonesAtTime(data, 1.0), ElementsAre(1));
    EXPECT_THAT(zonesAtTime(data, 1.5), ElementsAre(1));
    EXPECT_THAT(zonesAtTime(data, 100.0), ElementsAre(2));
}

TEST(ZonesAtTime, takesTheFirstZoneBeforeAllTimes) {
    DataSet data;
    data.zones = {zone(1, 7), zone(1, 5), zone(1, 6)};
    EXPECT_THAT(zonesAtTime(data, -3.0), ElementsAre(1));
    EXPECT_THAT(zonesAtTime(data, -std::numeric_limits<double>::infinity()), ElementsAre(1));
}

TEST(ZonesAtTime, forgivesARelativeErrorOf1e9) {
    DataSet data;
    data.zones = {zone(1, 0), zone(1, 1000.0)};
    EXPECT_THAT(zonesAtTime(data, 1000.0 * (1 - 0.9e-9)), ElementsAre(1));
    EXPECT_THAT(zonesAtTime(data, 1000.0 * (1 - 1.5e-9)), ElementsAre(0));
}

TEST(ZonesAtTime, looksAtEachStrandByItself) {
    DataSet data;
    data.zones = {zone(2, 0), zone(1, 0), zone(2, 10), zone(1, 1), zone(0, 99)};
    EXPECT_THAT(zonesAtTime(data, 5.0), ElementsAre(0, 3, 4));
    EXPECT_THAT(zonesAtTime(data, 10.0), ElementsAre(2, 3, 4));
}

TEST(ZonesAtTime, answersInTheOrderOfTheZones) {
    DataSet data;
    data.zones = {zone(1, 0), zone(2, 0), zone(1, 1)};
    EXPECT_THAT(zonesAtTime(data, 1.0), ElementsAre(1, 2));
}

TEST(ZonesAtTime, showsAllEnabledStaticZonesAtAnyTime) {
    DataSet data;
    data.zones = {zone(0, 5), zone(-1, 6), zone(0, 7, false)};
    EXPECT_THAT(zonesAtTime(data, 0.0), ElementsAre(0, 1));
}

TEST(ZonesAtTime, leavesDisabledZonesOut) {
    DataSet data;
    data.zones = {zone(1, 0), zone(1, 1, false), zone(2, 0, false)};
    EXPECT_THAT(zonesAtTime(data, 1.0), ElementsAre(0));
    EXPECT_THAT(zonesAtTime(DataSet{}, 1.0), IsEmpty());
}

TEST(ZonesAtTime, doesNotCareInWhichOrderZonesStand) {
    DataSet data;
    data.zones = {zone(1, 2), zone(1, 0), zone(1, 1)};
    EXPECT_THAT(zonesAtTime(data, 1.5), ElementsAre(2));
    EXPECT_THAT(zonesAtTime(data, 2.0), ElementsAre(0));
}

TEST(NeighbouringTimes, areThoseThatShowSomethingElse) {
    DataSet data;
    data.zones = {zone(1, 0), zone(1, 1), zone(1, 2), zone(0, 1.5), zone(1, 1.7, false)};
    EXPECT_EQ(timeAfter(data, 0.0), 1.0);
    EXPECT_EQ(timeAfter(data, 1.2), 2.0);
    EXPECT_EQ(timeAfter(data, 2.0), std::nullopt);
    EXPECT_EQ(timeBefore(data, 1.2), 0.0);
    EXPECT_EQ(timeBefore(data, 5.0), 1.0);
    EXPECT_EQ(timeBefore(data, 0.5), std::nullopt);
    EXPECT_EQ(timeAfter(data, -3.0), 1.0) << "at 0 the same zone is shown as before it";
}

TEST(NeighbouringTimes, ofSeveralStrandsComeOneByOne) {
    DataSet data;
    data.zones = {zone(1, 0), zone(1, 2), zone(2, 0), zone(2, 1)};
    EXPECT_EQ(timeAfter(data, 0.0), 1.0);
    EXPECT_EQ(timeAfter(data, 1.0), 2.0);
    EXPECT_EQ(timeBefore(data, 2.0), 1.0);
}

TEST(NeighbouringTimes, ofSteadyDataAreNone) {
    DataSet data;
    data.zones = {zone(0, 3)};
    EXPECT_EQ(timeAfter(data, 0.0), std::nullopt);
    EXPECT_EQ(timeBefore(data, 9.0), std::nullopt);
}

} // namespace
} // namespace corvane::host
