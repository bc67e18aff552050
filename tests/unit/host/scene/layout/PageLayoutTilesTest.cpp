// Pictures larger than can be drawn at once are put together from parts.
#include "host/scene/layout/PageLayout.h"
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/SceneTest.h"

#include <gmock/gmock.h>

#include <cstdlib>

namespace corvane::test {

namespace {

using testing::ElementsAre;

/// The mean difference of channels, 0..255.
double meanDifference(const host::Picture& a, const host::Picture& b) {
    long sum = 0;
    for (std::size_t i = 0; i < a.rgba.size(); ++i) {
        sum += std::abs(a.rgba[i] - b.rgba[i]);
    }
    return static_cast<double>(sum) / static_cast<double>(a.rgba.size());
}

} // namespace

class PageLayoutTilesTest : public SceneTest {
protected:
    PageLayoutTilesTest() {
        host::Frame& left = addPlainFrame(load("box.vtu", sampleGrid()), {0.0, 0.0, 5.0, 4.5});
        chooseDefaultPlots(left);
        left.style.annotations.title = "A title over several parts";
        left.style.annotations.showAxis = true;
        host::Frame& right = addPlainFrame(left.data(), {4.0, 1.0, 4.0, 3.5}, {0.1, 0.1, 0.2});
        chooseDefaultPlots(right);
        right.style.annotations.showAxis = true;
        right.view.perspective = false;
    }

    host::Picture drawTiled(int width, int height, int supersample, int limit) {
        scene::SceneRenderer small(statistics);
        small.limitTarget(limit);
        return small.draw(page, {ExportRegion_WorkArea, width, height, supersample});
    }
};

TEST_F(PageLayoutTilesTest, partsLieOnWholePixels) {
    using scene::PixelRect;
    EXPECT_THAT(scene::tilesOf({ExportRegion_WorkArea, 10, 7, 3}, 20),
                ElementsAre(PixelRect{0, 0, 18, 18}, PixelRect{18, 0, 12, 18},
                            PixelRect{0, 18, 18, 3}, PixelRect{18, 18, 12, 3}));
    EXPECT_THAT(scene::tilesOf({ExportRegion_WorkArea, 10, 7, 1}, 10),
                ElementsAre(PixelRect{0, 0, 10, 7}));
}

TEST_F(PageLayoutTilesTest, looksLikeThePictureDrawnAtOnce) {
    for (const int supersample : {1, 3}) {
        const host::Picture whole = draw(320, 180, supersample);
        const long before = statistics->renders;
        const host::Picture tiled = drawTiled(320, 180, supersample, 100);
        EXPECT_GT(statistics->renders, before + 4);
        ASSERT_EQ(tiled.width, 320);
        ASSERT_EQ(tiled.height, 180);
        // Edges fall a hair differently on pixels where another corner is the origin.
        EXPECT_LT(meanDifference(whole, tiled), 0.25) << supersample;
    }
}

TEST_F(PageLayoutTilesTest, aWrongTileWouldBeSeen) {
    const host::Picture whole = draw(320, 180, 1);
    page.active()->view.theta += 5.0;
    EXPECT_GT(meanDifference(whole, drawTiled(320, 180, 1, 100)), 0.25);
}

TEST_F(PageLayoutTilesTest, supersamplingMayExceedWhatTheGpuDrawsAtOnce) {
    const host::Picture picture = draw(1281, 8, 16); // 20496 pixels across
    EXPECT_EQ(picture.width, 1281);
    EXPECT_LT(meanDifference(picture, draw(1281, 8, 8)), 2.0);
}

} // namespace corvane::test
