// A picture depends on the page alone, never on what was drawn before.
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/SceneTest.h"

namespace corvane::test {

namespace {

constexpr int width = 200;
constexpr int height = 120;

} // namespace

class SceneRendererHistoryTest : public SceneTest {
protected:
    host::Frame& addFullFrame(std::shared_ptr<const host::DataSet> data) {
        host::Frame& frame = page.createFrame({0.0, 0.0, 8.0, 4.5});
        frame.attachData(std::move(data));
        chooseDefaultPlots(frame);
        frame.style.annotations.title = "A";
        frame.style.annotations.showTime = true;
        frame.style.isoSurfaces[0] = {true, "V:Z", -1.5, true, {}, 1.0};
        return frame;
    }

    host::Picture drawFresh() {
        scene::SceneRenderer fresh;
        return fresh.draw(page, {ExportRegion_WorkArea, width, height, 1});
    }

    /// Draws A, then B, then A again, and each of them with a renderer that has drawn nothing yet.
    void expectNoHistory(host::Frame& frame, const std::function<void(host::Frame&)>& change) {
        const auto keep = [](const host::Frame& f) {
            return std::tuple(f.placement, f.view, f.style, f.solutionTime, f.data(), f.plotType);
        };
        const auto before = keep(frame);
        const host::Picture first = draw(width, height);
        EXPECT_EQ(drawFresh(), first);
        change(frame);
        const host::Picture second = draw(width, height);
        EXPECT_NE(second, first);
        EXPECT_EQ(drawFresh(), second);
        frame.attachData(std::get<4>(before));
        std::tie(frame.placement, frame.view, frame.style, frame.solutionTime, std::ignore,
                 frame.plotType) = before;
        EXPECT_EQ(draw(width, height), first);
    }
};

TEST_F(SceneRendererHistoryTest, view) {
    expectNoHistory(addFullFrame(loadSeries(3)), [](host::Frame& frame) {
        frame.view.theta += 30.0;
        frame.view.perspective = !frame.view.perspective;
    });
}

TEST_F(SceneRendererHistoryTest, light) {
    expectNoHistory(addFullFrame(loadSeries(3)), [](host::Frame& frame) {
        frame.style.light = {10.0, 5.0};
    });
}

TEST_F(SceneRendererHistoryTest, solutionTime) {
    expectNoHistory(addFullFrame(loadSeries(3)),
                    [](host::Frame& frame) { frame.solutionTime = 2.0; });
}

TEST_F(SceneRendererHistoryTest, colours) {
    expectNoHistory(addFullFrame(loadSeries(3)), [](host::Frame& frame) {
        frame.style.contour = {"V:Z", false, -2.0, -1.0, "Plasma", true};
    });
}

TEST_F(SceneRendererHistoryTest, plots) {
    expectNoHistory(addFullFrame(loadSeries(3)), [](host::Frame& frame) {
        frame.style.surfaces[0] = {true, true, {}, 0.4, true};
        frame.style.slices[0].position = 0.9;
        frame.style.slices[1] = {true, 1, 0.3, false, {}, 1.0};
        frame.style.isoSurfaces[0].show = false;
    });
}

TEST_F(SceneRendererHistoryTest, annotations) {
    expectNoHistory(addFullFrame(loadSeries(3)), [](host::Frame& frame) {
        frame.style.annotations = {false, false, false, "", {0.1, 0.2, 0.3}};
        frame.style.contour.showLegend = false;
    });
}

TEST_F(SceneRendererHistoryTest, data) {
    const auto other = load("cube.vtp", sampleCube({0.5, 0.5, 0.5}, 1.0));
    expectNoHistory(addFullFrame(loadSeries(3)), [&](host::Frame& frame) {
        frame.attachData(other);
        frame.style.surfaces.at(0).show = true;
    });
}

TEST_F(SceneRendererHistoryTest, noData) {
    expectNoHistory(addFullFrame(loadSeries(3)),
                    [](host::Frame& frame) { frame.attachData(nullptr); });
}

TEST_F(SceneRendererHistoryTest, placement) {
    expectNoHistory(addFullFrame(loadSeries(3)), [](host::Frame& frame) {
        frame.placement = {-1.0, 1.0, 4.0, 3.0};
    });
}

TEST_F(SceneRendererHistoryTest, plotType) {
    expectNoHistory(addFullFrame(loadSeries(3)),
                    [](host::Frame& frame) { frame.plotType = PlotType_Cartesian2D; });
}

TEST_F(SceneRendererHistoryTest, sizeOfThePicture) {
    addFullFrame(loadSeries(3));
    const host::Picture first = draw(width, height);
    draw(2 * width, height / 2, 2);
    draw(33, 77);
    EXPECT_EQ(draw(width, height), first);
}

// Frames share what runs on the graphics card.
TEST_F(SceneRendererHistoryTest, lightOfAnotherFrame) {
    host::Frame& left = addFullFrame(loadSeries(3));
    left.placement.width = 4.0;
    left.style.light = {100.0, 60.0};
    host::Frame& right = addFullFrame(loadSeries(3));
    right.placement = {4.0, 0.0, 4.0, 4.5};
    right.style.light = {20.0, 5.0};
    draw(width, height);
    const host::Picture both = draw(width, height);
    page.deleteFrame(right.id());
    const host::Picture leftAlone = drawFresh();
    int differences = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width / 2; ++x) {
            differences += pixelAt(both, x, y) == pixelAt(leftAlone, x, y) ? 0 : 1;
        }
    }
    EXPECT_EQ(differences, 0);
}

// Renderers that were taken out of the window and put back have freed what they had uploaded.
TEST_F(SceneRendererHistoryTest, seeThroughPlotsBesideANewFrame) {
    host::Frame& frame = addFullFrame(loadSeries(3));
    frame.style.slices[0].opacity = 0.5;
    draw(width, height);
    page.createFrame({4.0, 0.0, 4.0, 4.5});
    EXPECT_EQ(draw(width, height), drawFresh());
}

TEST_F(SceneRendererHistoryTest, otherFrames) {
    addFullFrame(loadSeries(3)).placement = {0.0, 0.0, 4.0, 4.5};
    const host::Picture first = draw(width, height);
    host::Frame& second = addFullFrame(load("a.vtu", sampleGrid()));
    second.placement = {2.0, 1.0, 6.0, 3.5};
    const host::Picture both = draw(width, height);
    EXPECT_NE(both, first);
    page.pushTop();
    draw(width, height);
    page.pushTop();
    EXPECT_EQ(draw(width, height), both);
    EXPECT_EQ(drawFresh(), both);
    page.deleteFrame(second.id());
    EXPECT_EQ(draw(width, height), first);
}

} // namespace corvane::test
