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

class InterpolationTest : public EngineTest {
protected:
    InterpolationTest() { stopRemembering(); }

    std::vector<View> viewsOf(std::string const& flight) {
        return viewsOf(flightCase(flight).keyFrames);
    }

    std::vector<View> viewsOf(KeyFrames const& keyFrames) {
        // As the driver does: without a lock around it, the host would draw between the calls.
        HostLock const lock;
        return AnimatorKeyFrame(keyFrames, nullptr).views();
    }
};

double between(double from, double to, double share) {
    return from + share * (to - from);
}

void expectNear(View const& actual, View const& expected, std::size_t index) {
    double const tolerance = 1e-9;
    EXPECT_NEAR(actual.x(), expected.x(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.y(), expected.y(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.z(), expected.z(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.psi(), expected.psi(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.theta(), expected.theta(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.alpha(), expected.alpha(), tolerance) << "view " << index;
    EXPECT_NEAR(actual.width(), expected.width(), tolerance) << "view " << index;
}

double distanceToCentre(View const& view) {
    return std::sqrt(view.x() * view.x() + view.y() * view.y() + view.z() * view.z());
}

// Degrees between the directions in which two viewers see the centre.
double angleBetween(View const& a, View const& b) {
    double const product = a.x() * b.x() + a.y() * b.y() + a.z() * b.z();
    double const cosine = product / (distanceToCentre(a) * distanceToCentre(b));
    return std::acos(std::min(1.0, cosine)) * 180.0 / std::numbers::pi;
}

// The largest deviation of a step from their mean, as a share of it.
double unevenness(std::vector<View> const& views) {
    std::vector<double> steps;
    for (std::size_t i = 1; i < views.size(); ++i) {
        steps.push_back(angleBetween(views[i - 1], views[i]));
    }
    double const mean =
        std::accumulate(steps.begin(), steps.end(), 0.0) / static_cast<double>(steps.size());
    double worst = 0.0;
    for (double step : steps) {
        worst = std::max(worst, std::abs(step - mean) / mean);
    }
    return worst;
}

TEST_F(InterpolationTest, orbitIsACircleInEvenSteps) {
    std::vector<View> const views = viewsOf("Orbit");
    ASSERT_EQ(views.size(), 31u);
    for (std::size_t i = 0; i < 30; ++i) {
        double const share = static_cast<double>(i) / 30.0;
        expectNear(views[i], viewOfCentre(60.0, between(240.0, 360.0, share), 0.0, 10.0, 4.0), i);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

TEST_F(InterpolationTest, orbitInAllAnglesKeepsItsDistanceAndLooksAtTheCentre) {
    std::vector<View> const views = viewsOf("TiltedOrbit");
    ASSERT_EQ(views.size(), 46u);
    for (std::size_t i = 0; i < 45; ++i) {
        double const share = static_cast<double>(i) / 45.0;
        expectNear(views[i],
                   viewOfCentre(between(20.0, 110.0, share), between(10.0, 80.0, share),
                                between(5.0, 35.0, share), 10.0, 4.0),
                   i);
        EXPECT_NEAR(distanceToCentre(views[i]), 10.0, 1e-9) << i;
    }
}

TEST_F(InterpolationTest, halfTurnIsEven) {
    std::vector<View> const views = viewsOf("HalfTurn");
    for (View const& view : views) {
        EXPECT_NEAR(distanceToCentre(view), 10.0, 1e-9);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

// Twenty degrees on through straight down, not 340 back.
TEST_F(InterpolationTest, psiTurnsTheShortWayThrough180) {
    std::vector<View> const views = viewsOf("PsiThrough180");
    ASSERT_EQ(views.size(), 21u);
    for (std::size_t i = 0; i < 20; ++i) {
        expectNear(views[i], viewOfCentre(170.0 + static_cast<double>(i), 30.0, 0.0, 10.0, 4.0), i);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

TEST_F(InterpolationTest, thetaTurnsTheShortWayThrough360) {
    std::vector<View> const views = viewsOf("ThetaThrough360");
    ASSERT_EQ(views.size(), 11u);
    for (std::size_t i = 0; i < 10; ++i) {
        expectNear(views[i],
                   viewOfCentre(60.0, 350.0 + 2.0 * static_cast<double>(i), 0.0, 10.0, 4.0), i);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

TEST_F(InterpolationTest, alphaTwistsTheShortWayAndLeavesTheViewerInPlace) {
    std::vector<View> const views = viewsOf("AlphaWraps");
    ASSERT_EQ(views.size(), 13u);
    for (std::size_t i = 0; i < 12; ++i) {
        expectNear(views[i],
                   viewOfCentre(60.0, 240.0, 150.0 + 5.0 * static_cast<double>(i), 10.0, 4.0), i);
    }
}

TEST_F(InterpolationTest, zoomChangesTheWidthInEqualSharesAndNothingElse) {
    std::vector<View> const views = viewsOf("ZoomOnly");
    ASSERT_EQ(views.size(), 15u);
    for (std::size_t i = 0; i < views.size(); ++i) {
        View expected = views.front();
        expected.setWidth(between(4.0, 0.5, static_cast<double>(i) / 14.0));
        expectNear(views[i], expected, i);
    }
}

TEST_F(InterpolationTest, panMovesInAStraightLine) {
    std::vector<View> const views = viewsOf("PanOnly");
    ASSERT_EQ(views.size(), 11u);
    for (std::size_t i = 0; i < views.size(); ++i) {
        double const share = static_cast<double>(i) / 10.0;
        View expected = views.front();
        expected.setX(expected.x() + 3.0 * share);
        expected.setY(expected.y() - 2.0 * share);
        expected.setZ(expected.z() + 1.0 * share);
        expectNear(views[i], expected, i);
    }
}

TEST_F(InterpolationTest, dollyMovesTheDistanceInEqualShares) {
    std::vector<View> const views = viewsOf("DollyIn");
    ASSERT_EQ(views.size(), 17u);
    for (std::size_t i = 0; i < views.size(); ++i) {
        double const distance = between(10.0, 2.0, static_cast<double>(i) / 16.0);
        expectNear(views[i], viewOfCentre(60.0, 240.0, 0.0, distance, 4.0), i);
    }
}

TEST_F(InterpolationTest, holdStaysWhereItIs) {
    std::vector<View> const views = viewsOf("LongHold");
    ASSERT_EQ(views.size(), 26u);
    for (std::size_t i = 0; i < views.size(); ++i) {
        expectNear(views[i], views.front(), i);
    }
}

TEST_F(InterpolationTest, stepInTheMiddleOfTwoStandsHalfWay) {
    std::vector<View> const views = viewsOf("TwoKeysCountTwo");
    ASSERT_EQ(views.size(), 3u);
    expectNear(views[1], viewOfCentre(60.0, 300.0, 0.0, 10.0, 4.0), 1);
}

// The position left over is measured from where the whole turn carries the viewer, not from where
// he stands: turn and pan then mix so that every segment arrives.
TEST_F(InterpolationTest, everySegmentArrivesAtItsKeyView) {
    auto const& keyFrames = flightCase("FourKeysMixed").keyFrames;
    std::vector<View> const views = viewsOf("FourKeysMixed");
    std::size_t arrival = 0;
    for (std::size_t i = 0; i + 1 < keyFrames.size(); ++i) {
        arrival += keyFrames[i].frameCount;
        if (keyFrames[i].frameCount < 3) {
            continue;
        }
        View const& last = views[arrival - 1];
        View const& before = views[arrival - 2];
        View const& key = views[arrival];
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

TEST_F(InterpolationTest, longFlightsDoNotDrift) {
    KeyFrames keyFrames = flightCase("HugeCount").keyFrames;
    // Enough to see a drift, and short enough for every run of the tests.
    keyFrames[0].frameCount = 2000;
    std::vector<View> const views = viewsOf(keyFrames);
    ASSERT_EQ(views.size(), 2001u);
    for (std::size_t i = 0; i < 2000; i += 100) {
        double const share = static_cast<double>(i) / 2000.0;
        expectNear(views[i], viewOfCentre(60.0, between(240.0, 360.0, share), 0.0, 10.0, 4.0), i);
    }
    EXPECT_LT(unevenness(views), 0.01);
}

} // namespace
} // namespace corvane::test
