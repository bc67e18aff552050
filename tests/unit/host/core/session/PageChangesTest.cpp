// What listeners hear when the state of a page is put back.
#include "host/core/session/PageChanges.h"

#include "host/core/page/PageState.h"
#include "tests/unit/host/core/session/SessionTest.h"

#include <random>
#include <vector>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PutBackTest : public SessionTest {
protected:
    PutBackTest() {
        open();
        told.clear();
    }

    /// What listeners hear when the change is taken back.
    std::vector<StateChange_e> toldOfTakingBack(const std::function<void()>& change) {
        const PageState before = session.page().state();
        change();
        told.clear();
        session.drawing().redraw(true);
        EXPECT_TRUE(session.putBack(before));
        EXPECT_EQ(session.page().state(), before);
        return std::exchange(told, {});
    }
};

TEST_F(PutBackTest, tellsWhatIsAnotherThanBefore) {
    EXPECT_THAT(toldOfTakingBack([this] { session.rotateView(RotateAxis_Psi, 5.0); }),
                ElementsAre(StateChange_ViewChanged));
    EXPECT_THAT(toldOfTakingBack([this] {
                    session.setStyle({"Slice", "1", "Position"}, 0.125);
                }),
                ElementsAre(StateChange_StyleChanged));
    EXPECT_THAT(toldOfTakingBack([this] { session.setSolutionTime(0.75); }),
                ElementsAre(StateChange_SolutionTimeChanged));
    EXPECT_THAT(toldOfTakingBack([this] { session.setPlotType(PlotType_Cartesian2D); }),
                ElementsAre(StateChange_PlotTypeChanged));
    EXPECT_THAT(toldOfTakingBack([this] {
                    session.placeFrame(1, {1.0, 1.0, 2.0, 2.0});
                }),
                ElementsAre(StateChange_StyleChanged));
}

TEST_F(PutBackTest, tellsOfFramesAndWhichOneIsActive) {
    EXPECT_THAT(toldOfTakingBack([this] { session.createFrame({}); }),
                ElementsAre(StateChange_FrameDeleted, StateChange_FrameActivated));
    session.createFrame({});
    EXPECT_THAT(toldOfTakingBack([this] { session.activateFrame(1); }),
                ElementsAre(StateChange_FrameActivated));
    EXPECT_THAT(toldOfTakingBack([this] { session.deleteFrame(session.page().active()->id()); }),
                ElementsAre(StateChange_FrameCreated, StateChange_FrameActivated));
}

TEST_F(PutBackTest, tellsOfDataThatCameOrWent) {
    EXPECT_THAT(toldOfTakingBack([this] { session.silentPage().active()->attachData(nullptr); }),
                testing::Contains(StateChange_DataSetAttached));
    session.silentPage().active()->attachData(nullptr);
    EXPECT_THAT(toldOfTakingBack([this] { session.openData({"other"}); }),
                testing::Contains(StateChange_DataSetRemoved));
}

TEST_F(PutBackTest, marksWithoutANoticeWhatHasNone) {
    session.createFrame({});
    EXPECT_THAT(toldOfTakingBack([this] { session.lowerFrame(session.page().active()->id()); }),
                IsEmpty());
    EXPECT_TRUE(session.drawing().isMarked());
    EXPECT_THAT(toldOfTakingBack([this] { session.resizeWorkArea({400, 300, 50.0}); }), IsEmpty());
    EXPECT_TRUE(session.drawing().isMarked());
}

TEST_F(PutBackTest, doesNothingWhenAllIsSo) {
    session.drawing().redraw(true);
    EXPECT_TRUE(session.putBack(session.page().state()));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_FALSE(session.drawing().isMarked());
}

TEST_F(PutBackTest, isRefusedDuringAnAnimation) {
    const PageState before = session.page().state();
    session.rotateView(RotateAxis_Psi, 5.0);
    const PageState turned = session.page().state();
    session.status().start("Playing", true, true);
    EXPECT_FALSE(session.putBack(before));
    EXPECT_EQ(session.page().state(), turned);
    session.status().finish();
    EXPECT_TRUE(session.putBack(before));
}

TEST_F(PutBackTest, aWalkOfManyChangesLeadsBackToWhereItBegan) {
    std::minstd_rand random(7);
    const auto number = [&random](unsigned below) {
        return static_cast<unsigned>(random() % below);
    };
    std::vector<PageState> states{session.page().state()};
    for (int step = 0; step < 1000; ++step) {
        switch (number(8)) {
        case 0:
            session.createFrame({0.5, 0.5, 1.0 + number(3), 2.0});
            session.openData({"flow"});
            break;
        case 1:
            session.deleteFrame(1 + static_cast<long>(number(20)));
            break;
        case 2:
            session.activateFrame(1 + static_cast<long>(number(20)));
            break;
        case 3:
            session.rotateView(RotateAxis_Theta, number(360));
            break;
        case 4:
            session.setStyle({"Slice", "2", "Opacity"}, 0.01 * number(100));
            break;
        case 5:
            session.setStyle({"Surface", "1", "Show"}, static_cast<long>(number(2)));
            break;
        case 6:
            session.raiseFrame(1 + static_cast<long>(number(20)));
            break;
        default:
            session.setSolutionTime(0.1 * number(20));
        }
        states.push_back(session.page().state());
    }
    for (auto state = states.rbegin(); state != states.rend(); ++state) {
        ASSERT_TRUE(session.putBack(*state));
        ASSERT_EQ(session.page().state(), *state);
    }
    for (const PageState& state : states) {
        ASSERT_TRUE(session.putBack(state));
        ASSERT_EQ(session.page().state(), state);
    }
}

} // namespace
} // namespace corvane::host
