// The interpolated views against closed forms.
#include "addon/engine/AnimatorKeyFrame.h"

#include "addon/base/HostLock.h"
#include "tests/cases/FlightCases.h"
#include "tests/unit/addon/EngineTest.h"

#include <cmath>
#include <numbers>
#include <numeric>

namespace corvane::test {
namespace {

using corutiltools::AnimatorKeyFrame;
using corutiltools::HostLock;
using corutiltools::View;

class AnimatorKeyFrameInterpolationTest : public EngineTest {
protected:
    AnimatorKeyFrameInterpolationTest() { host.stopRemembering(); }

    std::vector<View> viewsOf(const std::string& flight) {
        return viewsOf(flightCase(flight).keyFrames);
    }

    std::vector<View> viewsOf(const KeyFrames& keyFrames) {
        // As the driver does: without a lock around it, the host would draw between the calls.
        const HostLock lock;
        return AnimatorKeyFrame(keyFrames, nullptr).views();
    }
};

double between(double from, double to, double share) {
    return from + share * (to - from);
}

void expectNear(const View& actual, const View& expected, std::size_t index) {
    const double tolerance = 1e-9;
    EXPECT_NEAR(actual.x(), expected.x(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.y(), expected.y(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.z(), expected.z(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.psi(), expected.psi(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.theta(), expected.theta(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.alpha(), expected.alpha(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.width(), expected.width(), tolerance) << "view " << index;
}

double distanceToCentre(const View& view) {
    return std::sqrt(view.x() * view.x() + view.y() * view.y() + view.z() * view.z());
}

// Degrees between the directions in which two viewers see the centre.
double angleBetween(const View& a, const View& b) {
    const double product = a.x() * b.x() + a.y() * b.y() + a.z() * b.z();
    const double cosine = product / (distanceToCentre(a) * distanceToCentre(b));
    return std::acos(std::min(1.0, cosine)) * 180.0 / std::numbers::pi;
}

// The largest deviation of a step from their mean, as a share of it.
double unevenness(const std::vector<View>& views) {
    std::vector<double> steps;
    for (std::size_t i = 1; i < views.size(); ++i) {
        steps.push_back(angleBetween(views[i - 1], views[i]));
    }
    const double mean =
        std::accumulate(steps.begin(), steps.end(), 0.0) / static_cast<double>(steps.size());
    double worst = 0.0;
    for (double step : steps) {
        worst = std::max(worst, std::abs(step - mean) / mean);
    }
    return worst;
}

TEST_F(AnimatorKeyFrameInterpolationTest, orbitIsACircleInEvenSteps) {
    const std::vector<View> views = viewsOf("Orbit");
    ASSERT_EQ(views.size(), 31u);
    for (std::size_t i = 0; i < 30; ++i) {
        const double share = static_cast<double>(i) / 30.0;
        expectNear(views[i], viewOfCentre(60.0, between(240.0, 360.0, share), 0.0, 10.0, 4.0), i);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

TEST_F(AnimatorKeyFrameInterpolationTest, orbitInAllAnglesKeepsItsDistanceAndLooksAtTheCentre) {
    const std::vector<View> views = viewsOf("TiltedOrbit");
    ASSERT_EQ(views.size(), 46u);
    for (std::size_t i = 0; i < 45; ++i) {
        const double share = static_cast<double>(i) / 45.0;
        expectNear(views[i],
                   viewOfCentre(between(20.0, 110.0, share), between(10.0, 80.0, share),
                                between(5.0, 35.0, share), 10.0, 4.0),
                   i);
        EXPECT_NEAR(distanceToCentre(views[i]), 10.0, 1e-9) << i;
    }
}

TEST_F(AnimatorKeyFrameInterpolationTest, halfTurnIsEven) {
    const std::vector<View> views = viewsOf("HalfTurn");
    for (const View& view : views) {
        EXPECT_NEAR(distanceToCentre(view), 10.0, 1e-9);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

// Twenty degrees on through straight down, not 340 back.
TEST_F(AnimatorKeyFrameInterpolationTest, psiTurnsTheShortWayThrough180) {
    const std::vector<View> views = viewsOf("PsiThrough180");
    ASSERT_EQ(views.size(), 21u);
    for (std::size_t i = 0; i < 20; ++i) {
        expectNear(views[i], viewOfCentre(170.0 + static_cast<double>(i), 30.0, 0.0, 10.0, 4.0), i);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

TEST_F(AnimatorKeyFrameInterpolationTest, thetaTurnsTheShortWayThrough360) {
    const std::vector<View> views = viewsOf("ThetaThrough360");
    ASSERT_EQ(views.size(), 11u);
    for (std::size_t i = 0; i < 10; ++i) {
        expectNear(views[i],
                   viewOfCentre(60.0, 350.0 + 2.0 * static_cast<double>(i), 0.0, 10.0, 4.0), i);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

TEST_F(AnimatorKeyFrameInterpolationTest, alphaTwistsTheShortWayAndLeavesTheViewerInPlace) {
    const std::vector<View> views = viewsOf("AlphaWraps");
    ASSERT_EQ(views.size(), 13u);
    for (std::size_t i = 0; i < 12; ++i) {
        expectNear(views[i],
                   viewOfCentre(60.0, 240.0, 150.0 + 5.0 * static_cast<double>(i), 10.0, 4.0), i);
    }
}

TEST_F(AnimatorKeyFrameInterpolationTest, zoomChangesTheWidthInEqualSharesAndNothingElse) {
    const std::vector<View> views = viewsOf("ZoomOnly");
    ASSERT_EQ(views.size(), 15u);
    for (std::size_t i = 0; i < views.size(); ++i) {
        View expected = views.front();
        expected.setWidth(between(4.0, 0.5, static_cast<double>(i) / 14.0));
        expectNear(views[i], expected, i);
    }
}

TEST_F(AnimatorKeyFrameInterpolationTest, panMovesInAStraightLine) {
    const std::vector<View> views = viewsOf("PanOnly");
    ASSERT_EQ(views.size(), 11u);
    for (std::size_t i = 0; i < views.size(); ++i) {
        const double share = static_cast<double>(i) / 10.0;
        View expected = views.front();
        expected.setX(expected.x() + 3.0 * share);
        expected.setY(expected.y() - 2.0 * share);
        expected.setZ(expected.z() + 1.0 * share);
        expectNear(views[i], expected, i);
    }
}

TEST_F(AnimatorKeyFrameInterpolationTest, dollyMovesTheDistanceInEqualShares) {
    const std::vector<View> views = viewsOf("DollyIn");
    ASSERT_EQ(views.size(), 17u);
    for (std::size_t i = 0; i < views.size(); ++i) {
        const double distance = between(10.0, 2.0, static_cast<double>(i) / 16.0);
        expectNear(views[i], viewOfCentre(60.0, 240.0, 0.0, distance, 4.0), i);
    }
}

TEST_F(AnimatorKeyFrameInterpolationTest, holdStaysWhereItIs) {
    const std::vector<View> views = viewsOf("LongHold");
    ASSERT_EQ(views.size(), 26u);
    for (std::size_t i = 0; i < views.size(); ++i) {
        expectNear(views[i], views.front(), i);
    }
}

TEST_F(AnimatorKeyFrameInterpolationTest, stepInTheMiddleOfTwoStandsHalfWay) {
    const std::vector<View> views = viewsOf("TwoKeysCountTwo");
    ASSERT_EQ(views.size(), 3u);
    expectNear(views[1], viewOfCentre(60.0, 300.0, 0.0, 10.0, 4.0), 1);
}

// The position left over is measured from where the whole turn carries the viewer, not from where
// he stands: turn and pan then mix so that every segment arrives.
TEST_F(AnimatorKeyFrameInterpolationTest, everySegmentArrivesAtItsKeyView) {
    const auto& keyFrames = flightCase("FourKeysMixed").keyFrames;
    const std::vector<View> views = viewsOf("FourKeysMixed");
    std::size_t arrival = 0;
    for (std::size_t i = 0; i + 1 < keyFrames.size(); ++i) {
        arrival += keyFrames[i].frameCount;
        if (keyFrames[i].frameCount < 3) {
            continue;
        }
        const View& last = views[arrival - 1];
        const View& before = views[arrival - 2];
        const View& key = views[arrival];
        EXPECT_NEAR(key.width() - last.width(), last.width() - before.width(), 1e-9) << i;
        EXPECT_NEAR(std::remainder(key.psi() - last.psi(), 360.0), last.psi() - before.psi(), 1e-9)
            << i;
        EXPECT_NEAR(std::remainder(key.theta() - last.theta(), 360.0),
                    last.theta() - before.theta(), 1e-9)
            << i;
        EXPECT_NEAR(std::remainder(key.alpha() - last.alpha(), 360.0),
                    last.alpha() - before.alpha(), 1e-9)
            << i;
    }
}

TEST_F(AnimatorKeyFrameInterpolationTest, longFlightsDoNotDrift) {
    KeyFrames keyFrames = flightCase("HugeCount").keyFrames;
    // Enough to see a drift, and short enough for every run of the tests.
    keyFrames[0].frameCount = 2000;
    const std::vector<View> views = viewsOf(keyFrames);
    ASSERT_EQ(views.size(), 2001u);
    for (std::size_t i = 0; i < 2000; i += 100) {
        const double share = static_cast<double>(i) / 2000.0;
        expectNear(views[i], viewOfCentre(60.0, between(240.0, 360.0, share), 0.0, 10.0, 4.0), i);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

} // namespace
} // namespace corvane::test
