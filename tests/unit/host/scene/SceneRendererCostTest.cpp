// A change costs what it must cost, and no more.
#include "host/core/base/HostError.h"
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/SceneTest.h"

#include <filesystem>

namespace corvane::test {

namespace {

struct Counts {
    long reads = 0;
    long surfaces = 0;
    long slices = 0;
    long contours = 0;

    friend bool operator==(const Counts&, const Counts&) = default;
};

std::ostream& operator<<(std::ostream& stream, const Counts& counts) {
    return stream << counts.reads << " reads, " << counts.surfaces << " surfaces, " << counts.slices
                  << " slices, " << counts.contours << " contours";
}

} // namespace

class SceneRendererCostTest : public SceneTest {
protected:
    void SetUp() override {
        m_frame = &addPlainFrame(loadSeries(5));
        m_frame->style.surfaces[0].show = true; // flow
        m_frame->style.surfaces[1].show = true; // body
        m_frame->style.slices[0] = {true, 3, 0.5, true, {}, 1.0};
        m_frame->style.isoSurfaces[0] = {true, "V:X", 0.5, true, {}, 1.0};
        m_frame->style.contour.variable = "T";
        m_frame->view.position = {0.5, 0.5, 4.0};
        draw(64, 36);
    }

    host::Frame& frame() { return *m_frame; }

    /// What the next picture costs, with what is prepared behind it.
    Counts cost() {
        const Counts before = now();
        const long renders = statistics->renders;
        draw(64, 36);
        renderer.waitForReadAhead();
        EXPECT_EQ(statistics->renders, renders + 1);
        const Counts after = now();
        return {after.reads - before.reads, after.surfaces - before.surfaces,
                after.slices - before.slices, after.contours - before.contours};
    }

private:
    Counts now() const {
        return {statistics->fileReads, statistics->surfaceRuns, statistics->sliceRuns,
                statistics->contourRuns};
    }

    host::Frame* m_frame = nullptr;
};

TEST_F(SceneRendererCostTest, theFirstPictureBuildsEachPlotOnce) {
    EXPECT_EQ(statistics->fileReads, 4); // first, middle, last, body
    EXPECT_EQ(statistics->surfaceRuns, 2);
    EXPECT_EQ(statistics->sliceRuns, 1);
    EXPECT_EQ(statistics->contourRuns, 1);
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(SceneRendererCostTest, cameraLightColoursAndTextsCostNothing) {
    frame().view.theta = 30.0;
    frame().view.position.x = 1.0;
    EXPECT_EQ(cost(), Counts{});
    frame().style.light = {20.0, 10.0};
    EXPECT_EQ(cost(), Counts{});
    frame().style.contour = {"V:Y", false, 0.0, 0.5, "Plasma", true};
    EXPECT_EQ(cost(), Counts{});
    frame().style.surfaces[0] = {true, true, {0.1, 0.2, 0.3}, 0.5, true};
    EXPECT_EQ(cost(), Counts{});
    frame().style.annotations = {true, true, true, "Title", {0.0, 0.0, 0.0}};
    EXPECT_EQ(cost(), Counts{});
    frame().placement = {1.0, 1.0, 3.0, 3.0};
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(SceneRendererCostTest, aNewTimeCostsThatTimeAndTheNextOneAndNothingStatic) {
    frame().solutionTime = 1.0;
    EXPECT_EQ(cost(), (Counts{1, 2, 2, 2})); // time 2 was read when the data were opened
    frame().solutionTime = 2.0;
    EXPECT_EQ(cost(), (Counts{1, 1, 1, 1})); // all of it for time 3
    frame().solutionTime = 3.0;
    EXPECT_EQ(cost(), (Counts{0, 1, 1, 1}));
    frame().solutionTime = 4.0;
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(SceneRendererCostTest, aTimeThatComesBackCostsNothing) {
    for (const double time : {1.0, 2.0, 3.0, 4.0}) {
        frame().solutionTime = time;
        cost();
    }
    for (const double time : {3.0, 0.0, 2.0, 4.0, 1.0}) {
        frame().solutionTime = time;
        EXPECT_EQ(cost(), Counts{}) << time;
    }
}

TEST_F(SceneRendererCostTest, whatIsPreparedFollowsTheDirectionOfTime) {
    frame().solutionTime = 4.0;
    EXPECT_EQ(cost(), (Counts{0, 1, 1, 1})); // nothing comes after it
    frame().solutionTime = 3.0;
    EXPECT_EQ(cost(), (Counts{1, 2, 2, 2})); // 3 and 2
    frame().solutionTime = 2.0;
    EXPECT_EQ(cost(), (Counts{1, 1, 1, 1})); // 1
}

TEST_F(SceneRendererCostTest, aPlotThatChangesIsPreparedAnewForTheNextTime) {
    frame().solutionTime = 1.0;
    cost();
    frame().style.isoSurfaces[0].value = 0.6;
    EXPECT_EQ(cost(), (Counts{0, 0, 0, 2}));
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(SceneRendererCostTest, aTimeBetweenTwoStepsCostsNothing) {
    frame().solutionTime = 0.25;
    EXPECT_EQ(cost(), (Counts{1, 1, 1, 1})); // for time 1, which is now known to come
    frame().solutionTime = 0.99;
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(SceneRendererCostTest, aPlotThatChangesIsBuiltAlone) {
    frame().style.slices[0].position = 0.75;
    EXPECT_EQ(cost(), (Counts{0, 0, 1, 0}));
    frame().style.slices[0].axis = 1;
    EXPECT_EQ(cost(), (Counts{0, 0, 1, 0}));
    frame().style.isoSurfaces[0].value = 0.6;
    EXPECT_EQ(cost(), (Counts{0, 0, 0, 1}));
    frame().style.isoSurfaces[0].variable = "T";
    EXPECT_EQ(cost(), (Counts{0, 0, 0, 1}));
    frame().style.slices[3] = {true, 2, 0.5, true, {}, 1.0};
    EXPECT_EQ(cost(), (Counts{0, 0, 1, 0}));
}

TEST_F(SceneRendererCostTest, aPlotThatWasHiddenIsStillThere) {
    frame().style.slices[0].show = false;
    frame().style.isoSurfaces[0].show = false;
    EXPECT_EQ(cost(), Counts{});
    frame().style.slices[0].show = true;
    frame().style.isoSurfaces[0].show = true;
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(SceneRendererCostTest, whatIsHiddenDoesNotFollowTime) {
    frame().style.slices[0].show = false;
    frame().style.surfaces[0].show = false;
    frame().style.isoSurfaces[0].show = false;
    frame().solutionTime = 1.0;
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(SceneRendererCostTest, aPictureOfManyFramesIsOneRender) {
    const auto data = frame().data();
    frame().placement = {0.0, 0.0, 4.0, 4.5};
    host::Frame& second = addPlainFrame(data, {4.0, 0.0, 4.0, 4.5});
    second.view = frame().view;
    second.style.surfaces[1].show = true;
    EXPECT_EQ(cost(), Counts{}); // the first frame shows the same
    second.style.slices[0] = {true, 1, 0.25, true, {}, 1.0};
    EXPECT_EQ(cost(), (Counts{0, 0, 1, 0}));
}

TEST_F(SceneRendererCostTest, aStepThatCannotBeReadFailsWhenItIsShownAndNotBefore) {
    std::filesystem::remove(folder.file("flow_3.vtu"));
    frame().solutionTime = 1.0;
    cost();
    frame().solutionTime = 2.0;
    EXPECT_NO_THROW(cost());
    frame().solutionTime = 3.0;
    EXPECT_THROW(draw(64, 36), host::HostError);
    frame().solutionTime = 2.0;
    EXPECT_NO_THROW(cost());
}

} // namespace corvane::test
