// Pages with several frames, and the sizes of pictures.
#include "host/core/base/HostError.h"
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/SceneTest.h"

namespace corvane::test {

namespace {

// 8 x 4.5 inches of paper: 40 pixels an inch.
constexpr int width = 320;
constexpr int height = 180;

constexpr Rgb paper{255, 255, 255};

bool isBlack(const Rgb& color) {
    return largestDifference(color, {0, 0, 0}) < 60;
}

} // namespace

class PageLayoutTest : public SceneTest {
protected:
    host::Frame& addColored(const host::Placement& placement, const host::Color& color) {
        return addPlainFrame(nullptr, placement, color);
    }
};

TEST_F(PageLayoutTest, framesLieWhereThePaperHasThem) {
    addColored({1.0, 0.5, 2.0, 3.0}, {0.0, 0.0, 0.0});
    addColored({5.0, 1.0, 2.5, 1.5}, {0.0, 0.0, 0.0});
    const host::Picture picture = draw(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool inFirst = x >= 40 && x < 120 && y >= 20 && y < 140;
            const bool inSecond = x >= 200 && x < 300 && y >= 40 && y < 100;
            if (inFirst || inSecond) {
                ASSERT_TRUE(isBlack(pixelAt(picture, x, y))) << x << " " << y;
            } else {
                ASSERT_EQ(pixelAt(picture, x, y), paper) << x << " " << y;
            }
        }
    }
}

TEST_F(PageLayoutTest, theTopOfTheStackCoversWhatIsBelow) {
    addColored({0.0, 0.0, 5.0, 4.5}, {1.0, 0.0, 0.0});
    addColored({3.0, 0.0, 5.0, 4.5}, {0.0, 0.0, 1.0});
    EXPECT_GT(pixelAt(draw(width, height), 160, 170).blue, 200);
    page.pushTop();
    EXPECT_GT(pixelAt(draw(width, height), 160, 170).red, 200);
    page.pushTop();
    EXPECT_GT(pixelAt(draw(width, height), 160, 170).blue, 200);
}

TEST_F(PageLayoutTest, regions) {
    addColored({1.0, 1.0, 2.0, 2.0}, {1.0, 0.0, 0.0});
    addColored({2.0, 2.0, 2.0, 1.0}, {0.0, 0.0, 1.0});
    const host::Picture current = draw(100, 50, 1, ExportRegion_CurrentFrame);
    EXPECT_GT(pixelAt(current, 0, 49).blue, 200);
    EXPECT_GT(pixelAt(current, 99, 49).blue, 200);

    // All frames: 3 x 2 inches from (1, 1) on.
    const host::Picture all = draw(150, 100, 1, ExportRegion_AllFrames);
    EXPECT_GT(pixelAt(all, 2, 97).red, 200);
    EXPECT_EQ(pixelAt(all, 148, 2), paper);
    EXPECT_GT(pixelAt(all, 148, 97).blue, 200);

    // The lower frame alone, although another one lies over it.
    page.activate(page.frames().back()->id());
    EXPECT_GT(pixelAt(draw(100, 100, 1, ExportRegion_CurrentFrame), 99, 99).red, 200);
}

TEST_F(PageLayoutTest, anEmptyPageIsPaper) {
    EXPECT_EQ(pixelAt(draw(width, height), 10, 10), paper);
    addColored({0.0, 0.0, 8.0, 4.5}, {0.0, 0.0, 0.0});
    draw(width, height);
    page.deleteFrame(page.active()->id());
    EXPECT_EQ(pixelAt(draw(width, height), 10, 10), paper);
}

TEST_F(PageLayoutTest, aFrameOfAnotherPlotTypeShowsNoData) {
    host::Frame& frame = addPlainFrame(load("box.vtu", sampleGrid()));
    chooseDefaultPlots(frame);
    frame.plotType = PlotType_Cartesian2D;
    frame.style.annotations = {};
    const host::Picture bare = draw(width, height);
    for (int x = 0; x < width; ++x) {
        ASSERT_EQ(pixelAt(bare, x, 90), pixelAt(bare, 0, 90));
    }
}

TEST_F(PageLayoutTest, sizesAreTheOnesAskedFor) {
    addColored({0.0, 0.0, 8.0, 4.5}, {0.0, 0.0, 0.0});
    for (const int supersample : {1, 2, 3}) {
        const host::Picture picture = draw(77, 41, supersample);
        EXPECT_EQ(picture.width, 77);
        EXPECT_EQ(picture.height, 41);
        ASSERT_EQ(picture.rgba.size(), 77U * 41U * 4U);
        for (std::size_t i = 3; i < picture.rgba.size(); i += 4) {
            ASSERT_EQ(picture.rgba[i], 255);
        }
    }
}

TEST_F(PageLayoutTest, supersamplingIsTheLargerPictureFilteredDown) {
    host::Frame& frame = addPlainFrame(load("box.vtu", sampleGrid()));
    chooseDefaultPlots(frame);
    frame.style.annotations.title = "Title";
    const host::Picture filtered = draw(160, 90, 2);
    const host::Picture large = draw(320, 180, 1);
    for (int y = 0; y < 90; ++y) {
        for (int x = 0; x < 160; ++x) {
            const Rgb a = pixelAt(large, 2 * x, 2 * y);
            const Rgb b = pixelAt(large, 2 * x + 1, 2 * y);
            const Rgb c = pixelAt(large, 2 * x, 2 * y + 1);
            const Rgb d = pixelAt(large, 2 * x + 1, 2 * y + 1);
            const Rgb mean{(a.red + b.red + c.red + d.red + 2) / 4,
                           (a.green + b.green + c.green + d.green + 2) / 4,
                           (a.blue + b.blue + c.blue + d.blue + 2) / 4};
            ASSERT_EQ(pixelAt(filtered, x, y), mean) << x << " " << y;
        }
    }
}

TEST_F(PageLayoutTest, sizesThatCannotBeDrawnAreRefused) {
    const int largest = renderer.largestSize();
    EXPECT_GE(largest, 4096);
    EXPECT_THROW(draw(0, 10), host::HostError);
    EXPECT_THROW(draw(10, -1), host::HostError);
    EXPECT_THROW(draw(10, 10, 0), host::HostError);
    EXPECT_THROW(draw(largest + 1, 10), host::HostError);
    EXPECT_THROW(draw(10, largest / 2 + 1, 2), host::HostError);
    EXPECT_NO_THROW(draw(largest, 2));
}

TEST_F(PageLayoutTest, dataOfAnotherReaderAreRefused) {
    addPlainFrame(std::make_shared<host::DataSet>());
    EXPECT_THROW(draw(width, height), host::HostError);
}

} // namespace corvane::test
