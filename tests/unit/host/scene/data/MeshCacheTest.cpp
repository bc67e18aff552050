// What is read, how often, and what is kept.
#include "host/scene/data/MeshCache.h"
#include "host/scene/DataReaders.h"
#include "host/scene/data/SceneDataSet.h"
#include "host/scene/data/SceneStatistics.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/scene/MeshFiles.h"
#include "tests/unit/host/scene/SampleMeshes.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

constexpr std::size_t plenty = std::size_t{1} << 30U;

class CountedSeries {
public:
    CountedSeries(int steps, std::size_t budget)
        : m_data(scene::DataReaders(budget, m_statistics).read({writeSeries(m_folder, steps)})) {}

    const scene::SceneDataSet& data() const {
        return dynamic_cast<const scene::SceneDataSet&>(*m_data);
    }
    long reads() const { return m_statistics->fileReads; }

private:
    TempFolder m_folder;
    std::shared_ptr<scene::SceneStatistics> m_statistics =
        std::make_shared<scene::SceneStatistics>();
    std::shared_ptr<const host::DataSet> m_data;
};

} // namespace

TEST(MeshCache, openingReadsFirstMiddleLastAndWhatIsStaticOnce) {
    const CountedSeries series(9, plenty);
    EXPECT_EQ(series.reads(), 4);
}

TEST(MeshCache, aTimeIsReadWhenItIsNeededAndKept) {
    const CountedSeries series(9, plenty);
    series.data().mesh(2);
    EXPECT_EQ(series.reads(), 5);
    for (int round = 0; round < 3; ++round) {
        for (const int zone : {0, 2, 4, 8, 9}) {
            series.data().mesh(zone);
        }
    }
    EXPECT_EQ(series.reads(), 5);
}

TEST(MeshCache, theMeshesUsedLastAreKeptWithinTheBudget) {
    const CountedSeries sample(1, plenty);
    const std::size_t bytes = sample.data().mesh(0)->GetActualMemorySize() * std::size_t{1024};
    const CountedSeries series(9, 3 * bytes + bytes / 2);
    for (const int zone : {1, 2, 3}) {
        series.data().mesh(zone);
    }
    const long before = series.reads();
    for (const int zone : {1, 2, 3, 1}) {
        series.data().mesh(zone);
    }
    EXPECT_EQ(series.reads(), before);
    series.data().mesh(5); // 2 was used longest ago
    series.data().mesh(1);
    series.data().mesh(3);
    EXPECT_EQ(series.reads(), before + 1);
    series.data().mesh(2);
    EXPECT_EQ(series.reads(), before + 2);
}

TEST(MeshCache, aBudgetTooSmallForAnythingStillWorks) {
    const CountedSeries series(3, 0);
    for (int zone = 0; zone < 3; ++zone) {
        EXPECT_EQ(series.data().mesh(zone)->GetNumberOfCells(), 64);
    }
    const long before = series.reads();
    series.data().mesh(2);
    EXPECT_EQ(series.reads(), before);
}

TEST(MeshCache, idsTellMeshesApartAndOutliveThem) {
    const CountedSeries series(3, 0);
    const CountedSeries other(3, 0);
    const auto id = series.data().meshId(1);
    series.data().mesh(1);
    series.data().mesh(2);
    EXPECT_EQ(series.data().meshId(1), id);
    EXPECT_NE(series.data().meshId(2), id);
    EXPECT_NE(series.data().meshId(3), id);
    EXPECT_NE(other.data().meshId(1), id);
}

TEST(MeshCache, theDefaultBudgetIsAPartOfTheMachinesMemory) {
    EXPECT_GT(scene::defaultMemoryBudget(), std::size_t{1} << 26U);
}

} // namespace corvane::test
