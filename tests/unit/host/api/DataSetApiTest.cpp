// Zones and solution time.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

#include <cmath>
#include <limits>

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<long> membersOf(CorSet set) {
    std::vector<long> members;
    for (long member = 0; (member = CorUtilSetGetNextMember(set, member)) != 0;) {
        members.push_back(member);
    }
    return members;
}

std::vector<long> enabledZones() {
    CorSet set = nullptr;
    EXPECT_EQ(CorUtilZoneGetEnabled(&set), TRUE);
    std::vector<long> members = membersOf(set);
    CorUtilSetDealloc(&set);
    EXPECT_EQ(set, nullptr);
    return members;
}

class DataSetApiTest : public HostTest {
protected:
    CorSet untouched = reinterpret_cast<CorSet>(this); ///< anything but NULL
};

TEST_F(DataSetApiTest, enabledZonesAscend) {
    EXPECT_EQ(CorUtilDataSetIsAvailable(), TRUE);
    EXPECT_THAT(enabledZones(), ElementsAre(1, 2, 3, 4));
}

TEST_F(DataSetApiTest, disabledZonesAreLeftOut) {
    auto data = makeTransientData();
    data->zones[0].enabled = false;
    data->zones[2].enabled = false;
    host.setData(data);
    EXPECT_THAT(enabledZones(), ElementsAre(2, 4));
}

TEST_F(DataSetApiTest, aSetWithoutMembersIsASet) {
    auto data = makeStaticData();
    data->zones[0].enabled = false;
    host.setData(data);
    EXPECT_THAT(enabledZones(), IsEmpty());
}

TEST_F(DataSetApiTest, steppingStartsAboveAnyNumber) {
    CorSet set = nullptr;
    CorUtilZoneGetEnabled(&set);
    EXPECT_EQ(CorUtilSetGetNextMember(set, -5), 1);
    EXPECT_EQ(CorUtilSetGetNextMember(set, 2), 3);
    EXPECT_EQ(CorUtilSetGetNextMember(set, 4), 0);
    EXPECT_EQ(CorUtilSetGetNextMember(set, 99), 0);
    EXPECT_EQ(CorUtilSetGetNextMember(nullptr, 0), 0);
    CorUtilSetDealloc(&set);
    CorUtilSetDealloc(&set);
    CorUtilSetDealloc(nullptr);
}

TEST_F(DataSetApiTest, withoutDataThereIsNoSetAndNoTime) {
    host.setData(nullptr);
    EXPECT_EQ(CorUtilDataSetIsAvailable(), FALSE);
    EXPECT_EQ(CorUtilZoneGetEnabled(&untouched), FALSE);
    EXPECT_EQ(untouched, nullptr);
    host.frame().solutionTime = 3.0;
    EXPECT_EQ(CorUtilSolutionTimeGetCurrent(), 0.0);
    EXPECT_EQ(CorUtilSolutionTimeSetCurrent(1.0), FALSE);
    EXPECT_EQ(host.frame().solutionTime, 3.0);
}

TEST_F(DataSetApiTest, aRefusedSetIsNullToo) {
    host.failNext("CorUtilZoneGetEnabled");
    EXPECT_EQ(CorUtilZoneGetEnabled(&untouched), FALSE);
    EXPECT_EQ(untouched, nullptr);
}

TEST_F(DataSetApiTest, nowhereToPutTheSetIsMisuse) {
    host.expectMisuse("CorUtilZoneGetEnabled: enabled is NULL");
    EXPECT_EQ(CorUtilZoneGetEnabled(nullptr), FALSE);
}

TEST_F(DataSetApiTest, aFreedSetIsMisuseAndHarmsNothing) {
    host.expectMisuse("CorUtilSetGetNextMember: the set was freed before, or is not from the host");
    host.expectMisuse("CorUtilSetDealloc: freed before, or not from the host");
    CorSet set = nullptr;
    ASSERT_EQ(CorUtilZoneGetEnabled(&set), TRUE);
    CorSet freed = set;
    CorUtilSetDealloc(&set);
    EXPECT_EQ(CorUtilSetGetNextMember(freed, 0), 0);
    CorUtilSetDealloc(&freed);
    EXPECT_EQ(freed, nullptr);
    EXPECT_EQ(host.misuse().size(), 2U);
}

TEST_F(DataSetApiTest, zonesTellTimeAndStrand) {
    EXPECT_EQ(CorUtilZoneGetSolutionTime(1), 0.0);
    EXPECT_EQ(CorUtilZoneGetSolutionTime(3), 2.0);
    EXPECT_EQ(CorUtilZoneGetStrandID(3), 1);
    EXPECT_EQ(CorUtilZoneGetStrandID(4), 0);
}

TEST_F(DataSetApiTest, unknownZonesAreMisuse) {
    host.expectMisuse("no such zone");
    for (const long zone : {0L, -1L, 5L, std::numeric_limits<long>::min()}) {
        EXPECT_EQ(CorUtilZoneGetSolutionTime(zone), 0.0);
        EXPECT_EQ(CorUtilZoneGetStrandID(zone), 0);
    }
    EXPECT_EQ(host.misuse().size(), 8U);
}

TEST_F(DataSetApiTest, anyFiniteTimeIsTaken) {
    for (const double time : {1.25, -7.0, 1e300}) {
        EXPECT_EQ(CorUtilSolutionTimeSetCurrent(time), TRUE);
        EXPECT_EQ(CorUtilSolutionTimeGetCurrent(), time);
    }
    EXPECT_TRUE(host.session().drawing().isMarked());
    EXPECT_EQ(host.renderer().renders(), 0U);
}

TEST_F(DataSetApiTest, aTimeThatIsNotFiniteIsRefusedSilently) {
    CorUtilSolutionTimeSetCurrent(1.5);
    EXPECT_EQ(CorUtilSolutionTimeSetCurrent(std::nan("")), FALSE);
    EXPECT_EQ(CorUtilSolutionTimeSetCurrent(std::numeric_limits<double>::infinity()), FALSE);
    EXPECT_EQ(CorUtilSolutionTimeGetCurrent(), 1.5);
}

TEST(DataSetApiWithoutFrameTest, allAnswersAreEmpty) {
    const MemoryHost host(MemoryHost::Empty{});
    CorSet set = nullptr;
    EXPECT_EQ(CorUtilDataSetIsAvailable(), FALSE);
    EXPECT_EQ(CorUtilZoneGetEnabled(&set), FALSE);
    EXPECT_EQ(CorUtilSolutionTimeGetCurrent(), 0.0);
    EXPECT_EQ(CorUtilSolutionTimeSetCurrent(1.0), FALSE);
    EXPECT_THAT(host.leftBehind(), IsEmpty());
}

} // namespace
} // namespace corvane::test
