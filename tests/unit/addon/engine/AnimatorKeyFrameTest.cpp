// The list of views of a flight.
#include "addon/engine/AnimatorKeyFrame.h"

#include "addon/base/HostLock.h"
#include "addon/base/KeyFrameError.h"
#include "addon/engine/AnimatorStreams.h"
#include "addon/model/Utilities.h"
#include "tests/cases/FlightCases.h"
#include "tests/unit/addon/EngineTest.h"

#include <limits>
#include <stdexcept>

namespace corvane::test {
namespace {

using corutiltools::AnimatorKeyFrame;
using corutiltools::AnimatorStreams;
using corutiltools::GetTotalFrameCount;
using corutiltools::HostLock;
using corutiltools::KeyFrameError;
using corutiltools::View;

class AnimatorKeyFrameTest : public EngineTest {
protected:
    static std::string errorOf(KeyFrames const& keyFrames) {
        try {
            AnimatorKeyFrame const animator(keyFrames, nullptr);
        } catch (KeyFrameError const& error) {
            return error.what();
        }
        return "";
    }
};

class EveryFlightTest : public EngineTest, public testing::WithParamInterface<FlightCase> {
protected:
    KeyFrames const& keyFrames() { return GetParam().keyFrames; }
};

// The longest one is left to the test of drift, as it only repeats the shortest one's steps.
std::vector<FlightCase> playableFlights() {
    std::vector<FlightCase> flights = flightCases();
    std::erase_if(flights, [](FlightCase const& flight) {
        return flight.keyFrames.size() < 2 || flight.name == "HugeCount";
    });
    return flights;
}

INSTANTIATE_TEST_SUITE_P(Museum, EveryFlightTest, testing::ValuesIn(playableFlights()),
                         [](auto const& flight) { return flight.param.name; });

TEST_P(EveryFlightTest, hasAViewForEachFrameAndNoRoomForMore) {
    AnimatorKeyFrame const animator(keyFrames(), nullptr);
    EXPECT_EQ(animator.views().size(), GetTotalFrameCount(keyFrames()));
    EXPECT_EQ(animator.views().capacity(), animator.views().size());
}

TEST_P(EveryFlightTest, showsKeyFramesAsTheyWereStored) {
    AnimatorKeyFrame const animator(keyFrames(), nullptr);
    std::size_t index = 0;
    for (std::size_t i = 0; i + 1 < keyFrames().size(); ++i) {
        if (keyFrames()[i].frameCount > 0) {
            EXPECT_EQ(animator.views().at(index), keyFrames()[i].view) << i;
        }
        index += keyFrames()[i].frameCount;
    }
    EXPECT_EQ(animator.views().at(index), keyFrames().back().view);
    EXPECT_EQ(index + 1, animator.views().size());
}

TEST_P(EveryFlightTest, asksForSixTurnsAStepAndDrawsNothing) {
    // As the driver does: without a lock around it, the host would draw between the calls.
    HostLock const lock;
    AnimatorKeyFrame const animator(keyFrames(), nullptr);
    std::size_t steps = 0;
    for (std::size_t i = 0; i + 1 < keyFrames().size(); ++i) {
        steps += std::max(keyFrames()[i].frameCount, 1ul) - 1;
    }
    EXPECT_EQ(callsTo("CorUtilViewRotate3D").size(), 6 * steps);
    EXPECT_EQ(callsTo("CorUtilThreeDViewGetViewerPos").size(), 3 * steps);
    EXPECT_EQ(callsTo("CorUtilStatusCheckPercentDone").size(), steps);
    EXPECT_THAT(callsTo("CorUtilRedraw"), IsEmpty());
    EXPECT_EQ(host.renderer().renders(), 0u);
    EXPECT_EQ(host.session().locks().depth(), 1);
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_P(EveryFlightTest, leavesPerspectiveAsItIs) {
    for (bool perspective : {true, false}) {
        view().perspective = perspective;
        AnimatorKeyFrame const animator(keyFrames(), nullptr);
        EXPECT_EQ(view().perspective, perspective);
    }
}

TEST_P(EveryFlightTest, isTheSameWithAndWithoutPerspective) {
    view().perspective = true;
    AnimatorKeyFrame const with(keyFrames(), nullptr);
    view().perspective = false;
    AnimatorKeyFrame const without(keyFrames(), nullptr);
    EXPECT_EQ(with.views(), without.views());
}

TEST_F(AnimatorKeyFrameTest, withOneFrameHasTheKeyViewsAloneAndMovesNothing) {
    auto const& keyFrames = flightCase("TwoKeysCountOne").keyFrames;
    AnimatorKeyFrame const animator(keyFrames, nullptr);
    EXPECT_THAT(animator.views(), ElementsAre(keyFrames[0].view, keyFrames[1].view));
    EXPECT_THAT(callNames(),
                ElementsAre("CorUtilStatusStartPercentDone", "CorUtilStatusFinishPercentDone"));
}

TEST_F(AnimatorKeyFrameTest, ignoresTheLastKeyFramesCount) {
    KeyFrames keyFrames = flightCase("Orbit").keyFrames;
    std::vector<View> const views = AnimatorKeyFrame(keyFrames, nullptr).views();
    keyFrames.back().frameCount = 7;
    EXPECT_EQ(AnimatorKeyFrame(keyFrames, nullptr).views(), views);
}

TEST_F(AnimatorKeyFrameTest, leavesOutASegmentWithoutFrames) {
    auto const& first = flightCase("ZeroCountFirst").keyFrames;
    EXPECT_THAT(AnimatorKeyFrame(first, nullptr).views(), ElementsAre(first[1].view));
    auto const& middle = flightCase("ZeroCountMiddle").keyFrames;
    std::vector<View> const views = AnimatorKeyFrame(middle, nullptr).views();
    ASSERT_EQ(views.size(), 4u);
    EXPECT_EQ(views[0], middle[0].view);
    EXPECT_EQ(views[3], middle[2].view);
}

TEST_F(AnimatorKeyFrameTest, tellsWhatItDoesAndHowFarItIs) {
    AnimatorKeyFrame const animator(keyFramesWithCounts({3, 2, 9}), nullptr);
    EXPECT_EQ(calls().front(), "CorUtilStatusStartPercentDone(\"Creating interpolated views.... "
                               "Press [Esc] or click [Stop] to cancel.\", TRUE, TRUE)");
    EXPECT_EQ(calls().back(), "CorUtilStatusFinishPercentDone()");
    // Six frames; the key views take no step.
    EXPECT_THAT(callsTo("CorUtilStatusCheckPercentDone"),
                ElementsAre("CorUtilStatusCheckPercentDone(16)",
                            "CorUtilStatusCheckPercentDone(33)",
                            "CorUtilStatusCheckPercentDone(50)"));
}

TEST_F(AnimatorKeyFrameTest, stopsAtOnceWhenTheUserWantsIt) {
    host.stopAtCheck(4);
    EXPECT_EQ(errorOf(flightCase("Orbit").keyFrames), "Animation canceled.");
    EXPECT_EQ(callsTo("CorUtilStatusCheckPercentDone").size(), 4u);
    EXPECT_TRUE(hostIsAtRest());
}

TEST_F(AnimatorKeyFrameTest, thatIsStoppedTakesTheChainWithIt) {
    frame().style.streamTiming.timeAnchor = 2.0;
    auto const& keyFrames = flightCase("Orbit").keyFrames;
    auto* inner = new AnimatorStreams(keyFrames, nullptr);
    inner->drawFrameAtIndex(0);
    host.stopAtCheck(1);
    EXPECT_THROW(AnimatorKeyFrame(keyFrames, inner), KeyFrameError);
    EXPECT_EQ(frame().style.streamTiming.timeAnchor, 2.0);
}

TEST_F(AnimatorKeyFrameTest, refusesFewerThanTwoViews) {
    std::string const message =
        "At least two keyFrame views must be established to perform an animation.";
    EXPECT_EQ(errorOf({}), message);
    EXPECT_EQ(errorOf(flightCase("OneKey").keyFrames), message);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AnimatorKeyFrameTest, refusesFewerThanTwoViewsInABuildToo) {
    AnimatorKeyFrame animator(flightCase("TwoKeysCountOne").keyFrames, nullptr);
    EXPECT_THROW(animator.buildViewList({View()}, {1}), KeyFrameError);
    EXPECT_THROW(animator.buildViewList({}, {}), KeyFrameError);
}

TEST_F(AnimatorKeyFrameTest, buildReplacesTheList) {
    auto const& keyFrames = flightCase("TwoKeysCountOne").keyFrames;
    AnimatorKeyFrame animator(keyFrames, nullptr);
    animator.buildViewList({keyFrames[1].view, keyFrames[0].view}, {1, 1});
    EXPECT_THAT(animator.views(), ElementsAre(keyFrames[1].view, keyFrames[0].view));
}

TEST_F(AnimatorKeyFrameTest, refusesAListThatNoVectorCanHoldBeforeItMovesAnything) {
    unsigned long const largest = std::numeric_limits<unsigned long>::max();
    EXPECT_THROW(AnimatorKeyFrame(keyFramesWithCounts({largest, 1}), nullptr), std::length_error);
    EXPECT_THROW(AnimatorKeyFrame(keyFramesWithCounts({largest / 8, 1}), nullptr),
                 std::length_error);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AnimatorKeyFrameTest, drawingAppliesTheViewAndNothingElse) {
    auto const& keyFrames = flightCase("Orbit").keyFrames;
    AnimatorKeyFrame animator(keyFrames, nullptr);
    host.clearCalls();
    animator.drawFrameAtIndex(30);
    std::vector<std::string> const drawn = calls();
    EXPECT_EQ(view().theta, keyFrames[1].view.theta());

    host.clearCalls();
    keyFrames[1].view.apply();
    EXPECT_EQ(drawn, calls());
}

TEST_F(AnimatorKeyFrameTest, drawsFramesInAnyOrderAndAgain) {
    AnimatorKeyFrame animator(flightCase("Orbit").keyFrames, nullptr);
    for (unsigned long index : {30ul, 3ul, 3ul, 29ul, 0ul}) {
        animator.drawFrameAtIndex(index);
        EXPECT_EQ(view().theta, animator.views()[index].theta()) << index;
    }
}

TEST_F(AnimatorKeyFrameTest, pastTheEndAppliesNothing) {
    AnimatorKeyFrame animator(flightCase("Orbit").keyFrames, nullptr);
    host.clearCalls();
    EXPECT_THROW(animator.drawFrameAtIndex(31), std::out_of_range);
    EXPECT_THAT(calls(), IsEmpty());
}

} // namespace
} // namespace corvane::test
