// The state of a page as a value: taken, compared, put back.
#include "host/core/page/PageState.h"

#include "host/core/page/Page.h"
#include "tests/support/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;

class PageStateTest : public testing::Test {
protected:
    PageStateTest() {
        page.workArea = {800, 600, 100.0};
        first().attachData(test::makeTransientData());
        chooseDefaultPlots(first());
        page.createFrame({1.0, 2.0, 3.0, 4.0});
    }

    Frame& first() { return page.find(1) == nullptr ? page.createFrame({}) : *page.find(1); }
    std::vector<long> stack() const {
        std::vector<long> numbers;
        for (const Frame* const frame : page.frames()) {
            numbers.push_back(frame->id());
        }
        return numbers;
    }

    Page page;
};

TEST_F(PageStateTest, holdsAllThatFramesShow) {
    const PageState state = page.state();
    EXPECT_EQ(state.workArea, page.workArea);
    ASSERT_EQ(state.frames.size(), 2U);
    EXPECT_EQ(state.active, 2);
    EXPECT_EQ(state.frames[0].placement, (Placement{1.0, 2.0, 3.0, 4.0}));
    EXPECT_EQ(state.frames[1].id, 1);
    EXPECT_EQ(state.frames[1].data, first().data());
    EXPECT_EQ(state.frames[1].style, first().style);
    EXPECT_EQ(state.frames[1].view, first().view);
}

TEST_F(PageStateTest, differsAfterAnyChangeAndIsEqualAfterItsReverse) {
    const PageState state = page.state();
    EXPECT_EQ(page.state(), state);
    std::swap(first().style.contour.minimum, first().style.contour.maximum);
    EXPECT_NE(page.state(), state);
    std::swap(first().style.contour.minimum, first().style.contour.maximum);
    EXPECT_EQ(page.state(), state);
    page.lower(2);
    EXPECT_NE(page.state(), state);
    page.raise(2);
    EXPECT_EQ(page.state(), state);
    page.activate(1);
    EXPECT_NE(page.state(), state);
}

TEST_F(PageStateTest, isNotChangedByWhatThePageDoesLater) {
    const PageState state = page.state();
    const double before = state.frames[1].view.psi;
    first().view.psi += 1.0;
    EXPECT_EQ(state.frames[1].view.psi, before);
}

TEST_F(PageStateTest, bringsBackFramesAtTheirAddresses) {
    const PageState state = page.state();
    Frame* const kept = &first();
    kept->view.psi += 10.0;
    kept->style.slices[2].position = -3.0;
    kept->solutionTime = 0.5;
    kept->plotType = PlotType_Cartesian2D;
    page.putBack(state);
    EXPECT_EQ(page.find(1), kept);
    EXPECT_EQ(page.state(), state);
}

TEST_F(PageStateTest, bringsBackFramesThatWereDeletedAndDeletesNewOnes) {
    const PageState state = page.state();
    page.deleteFrame(1);
    page.createFrame({});
    page.putBack(state);
    EXPECT_EQ(page.state(), state);
    EXPECT_THAT(stack(), ElementsAre(2, 1));
    EXPECT_EQ(page.active()->id(), 2);
}

TEST_F(PageStateTest, usesNoNumberTwice) {
    const PageState state = page.state();
    page.createFrame({});
    page.putBack(state);
    EXPECT_EQ(page.createFrame({}).id(), 4);
    Page other;
    other.putBack(state);
    EXPECT_EQ(other.createFrame({}).id(), 3);
}

TEST_F(PageStateTest, pathsReachTheValuesThatWerePutBack) {
    const PageState state = page.state();
    first().attachData(nullptr);
    page.putBack(state);
    Frame& frame = first();
    ASSERT_FALSE(frame.style.surfaces.empty());
    EXPECT_EQ(frame.styles().set({"Surface", "1", "Opacity"}, 0.25), StyleSet_Ok);
    EXPECT_EQ(frame.style.surfaces[0].opacity, 0.25);
    EXPECT_EQ(frame.styles().set({"Surface", "1", "Opacity"}, 0.5), StyleSet_Ok);
    page.putBack(state);
    EXPECT_EQ(frame.styles().set({"Surface", "1", "Opacity"}, 0.75), StyleSet_Ok);
    EXPECT_EQ(frame.style.surfaces[0].opacity, 0.75);
}

TEST_F(PageStateTest, isOfNoFrameWithoutOne) {
    Page empty;
    EXPECT_EQ(empty.state().active, 0);
    page.putBack(empty.state());
    EXPECT_EQ(page.active(), nullptr);
    EXPECT_TRUE(page.frames().empty());
}

TEST_F(PageStateTest, puttingBackEndsAWalk) {
    const PageState state = page.state();
    page.startWalk();
    page.nextOfWalk();
    page.putBack(state);
    EXPECT_EQ(page.current(), page.active());
}

} // namespace
} // namespace corvane::host
