// Frames of the page.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

namespace corvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<StateChange_e> heard;
void hear(StateChange_e change) {
    heard.push_back(change);
}

/// Three frames; from the top down: third, second, first. The third one is active.
class FrameApiTest : public HostTest {
protected:
    FrameApiTest()
        : first(host.frame().id()),
          second(host.addFrame({1.0, 2.0, 3.0, 4.0}).id()),
          third(host.addFrame({5.0, 6.0, 7.0, 8.0}).id()) {
        heard.clear();
        host.session().stateChanges().addCallback(&hear);
    }

    std::vector<long> stack() {
        std::vector<long> ids;
        for (const auto& frame : host.session().page().frames()) {
            ids.push_back(frame->id());
        }
        return ids;
    }

    long first;
    long second;
    long third;
};

TEST_F(FrameApiTest, theActiveFrameAnswers) {
    EXPECT_EQ(CorUtilFrameGetCount(), 3);
    EXPECT_EQ(CorUtilFrameGetUniqueID(), third);
    EXPECT_EQ(CorUtilFrameGetPlotType(), PlotType_Cartesian3D);
    host.frame().plotType = PlotType_Cartesian2D;
    EXPECT_EQ(CorUtilFrameGetPlotType(), PlotType_Cartesian2D);
}

TEST_F(FrameApiTest, activatingKeepsTheStackAndTells) {
    EXPECT_EQ(CorUtilFrameActivateByUniqueID(first), TRUE);
    EXPECT_EQ(CorUtilFrameGetUniqueID(), first);
    EXPECT_THAT(stack(), ElementsAre(third, second, first));
    EXPECT_EQ(CorUtilFrameActivateTop(), TRUE);
    EXPECT_EQ(CorUtilFrameGetUniqueID(), third);
    EXPECT_THAT(heard, ElementsAre(StateChange_FrameActivated, StateChange_FrameActivated));
}

TEST_F(FrameApiTest, activatingTheActiveFrameTellsNobody) {
    EXPECT_EQ(CorUtilFrameActivateByUniqueID(third), TRUE);
    EXPECT_EQ(CorUtilFrameActivateTop(), TRUE);
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_FALSE(host.session().drawing().isMarked());
}

TEST_F(FrameApiTest, anUnknownFrameIsMisuseAndTheActiveOneStays) {
    host.expectMisuse("CorUtilFrameActivateByUniqueID: no such frame");
    EXPECT_EQ(CorUtilFrameActivateByUniqueID(0), FALSE);
    EXPECT_EQ(CorUtilFrameActivateByUniqueID(third + 1), FALSE);
    EXPECT_EQ(CorUtilFrameGetUniqueID(), third);
}

TEST_F(FrameApiTest, pushingVisitsEachFrameAndRestoresTheOrder) {
    std::vector<long> visited;
    for (long n = CorUtilFrameGetCount(); n > 0; --n) {
        EXPECT_EQ(CorUtilFramePushTop(), TRUE);
        visited.push_back(CorUtilFrameGetUniqueID());
    }
    EXPECT_THAT(visited, ElementsAre(second, first, third));
    EXPECT_THAT(stack(), ElementsAre(third, second, first));
    EXPECT_TRUE(host.session().drawing().isMarked());
    EXPECT_EQ(host.renderer().renders(), 0U);
}

TEST_F(FrameApiTest, aStackInAnotherOrderIsDrawnAgainThoughTheSameFrameIsActive) {
    CorUtilFrameActivateByUniqueID(second);
    CorUtilRedraw(TRUE);
    heard.clear();
    CorUtilFramePushTop();
    EXPECT_EQ(CorUtilFrameGetUniqueID(), second);
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_TRUE(host.session().drawing().isMarked());
}

TEST_F(FrameApiTest, aVisitAnswersForEachFrameAndChangesNothing) {
    std::vector<long> visited;
    std::vector<double> lefts;
    CorUtilFrameLightweightPopStart();
    do {
        double x = 0.0;
        CorUtilFrameGetPosAndSize(&x, nullptr, nullptr, nullptr);
        visited.push_back(CorUtilFrameGetUniqueID());
        lefts.push_back(x);
    } while (CorUtilFrameLightweightPopNext());
    CorUtilFrameLightweightPopEnd();
    EXPECT_THAT(visited, ElementsAre(third, second, first));
    EXPECT_THAT(lefts, ElementsAre(5.0, 1.0, 0.0));
    EXPECT_EQ(CorUtilFrameGetUniqueID(), third);
    EXPECT_THAT(heard, IsEmpty());
    EXPECT_FALSE(host.session().drawing().isMarked());
}

TEST_F(FrameApiTest, withoutAStartThereIsNoVisit) {
    EXPECT_EQ(CorUtilFrameLightweightPopNext(), FALSE);
    CorUtilFrameLightweightPopEnd();
    EXPECT_EQ(CorUtilFrameGetUniqueID(), third);
}

TEST_F(FrameApiTest, placementsAreWrittenWhereThereIsRoom) {
    double x = 0.0;
    double y = 0.0;
    double w = 0.0;
    double h = 0.0;
    CorUtilFrameGetPosAndSize(&x, &y, &w, &h);
    EXPECT_THAT(std::vector({x, y, w, h}), ElementsAre(5.0, 6.0, 7.0, 8.0));
    CorUtilFrameGetPosAndSize(nullptr, nullptr, nullptr, nullptr);
}

TEST_F(FrameApiTest, wholePixelsComeOutWhole) {
    host.session().silentPage().workArea.pixelsPerInch = 200.0;
    EXPECT_EQ(CorUtilConvertXDimension(4.0, CoordSys_Paper, CoordSys_Screen), 800.0);
    EXPECT_EQ(CorUtilConvertYDimension(3.0, CoordSys_Paper, CoordSys_Screen), 600.0);
    EXPECT_EQ(CorUtilConvertXDimension(800.0, CoordSys_Screen, CoordSys_Paper), 4.0);
    host.session().silentPage().workArea.pixelsPerInch = 3000.0 / 7.0;
    EXPECT_EQ(CorUtilConvertXDimension(7.0 * 0.1, CoordSys_Paper, CoordSys_Screen), 300.0);
}

TEST_F(FrameApiTest, oneSystemToItselfChangesNothing) {
    EXPECT_EQ(CorUtilConvertXDimension(1.234, CoordSys_Paper, CoordSys_Paper), 1.234);
    EXPECT_EQ(CorUtilConvertYDimension(1.234, CoordSys_Screen, CoordSys_Screen), 1.234);
}

TEST_F(FrameApiTest, anUnknownSystemIsMisuse) {
    host.expectMisuse("CorUtilConvertXDimension: unknown coordinate system");
    EXPECT_EQ(CorUtilConvertXDimension(1.5, static_cast<CoordSys_e>(1), CoordSys_Screen), 1.5);
}

TEST_F(FrameApiTest, theWorkAreaIsToldInPixels) {
    host.session().silentPage().workArea.width = 640;
    host.session().silentPage().workArea.height = 0;
    int width = -1;
    int height = -1;
    CorUtilWorkAreaGetDimensions(&width, &height);
    EXPECT_EQ(width, 640);
    EXPECT_EQ(height, 0);
    CorUtilWorkAreaGetDimensions(nullptr, nullptr);
}

class FrameApiOfEmptyPageTest : public EmptyHostTest {};

TEST_F(FrameApiOfEmptyPageTest, allAnswersAreEmpty) {
    EXPECT_EQ(CorUtilFrameGetCount(), 0);
    EXPECT_EQ(CorUtilFrameGetPlotType(), PlotType_None);
    EXPECT_EQ(CorUtilFrameGetUniqueID(), 0);
    EXPECT_EQ(CorUtilFrameActivateTop(), FALSE);
    EXPECT_EQ(CorUtilFramePushTop(), FALSE);
    CorUtilFrameLightweightPopStart();
    EXPECT_EQ(CorUtilFrameLightweightPopNext(), FALSE);
    CorUtilFrameLightweightPopEnd();
    double x = -1.0;
    CorUtilFrameGetPosAndSize(&x, &x, &x, &x);
    EXPECT_EQ(x, -1.0);
}

} // namespace
} // namespace corvane::test
