// A picture that comes out of black and goes back into it.
#include "addon/engine/AnimatorFade.h"

#include "addon/base/KeyFrameError.h"
#include "tests/unit/addon/EngineTest.h"

#include <memory>
#include <optional>

namespace corvane::test {
namespace {

using corutiltools::AnimatorFade;
using corutiltools::KeyFrameError;
using corutiltools::Settings_s;

Settings_s fading(bool in, bool out) {
    Settings_s settings = plainSettings();
    settings.fadeIn = in;
    settings.fadeOut = out;
    return settings;
}

class AnimatorFadeTest : public EngineTest {
protected:
    AnimatorFadeTest() {
        light().intensity = 80.0;
        light().backgroundLight = 20.0;
        frame().style.annotations.showAxis = true;
    }

    host::LightStyle& light() { return frame().style.light; }
    bool axisShows() { return frame().style.annotations.showAxis; }

    // The light that each frame of a flight is given as a fraction of the full light; nothing for a
    // frame that is given none.
    std::vector<std::optional<double>> fractions(unsigned long totalFrames, bool in, bool out) {
        AnimatorFade animator(keyFramesForFrames(totalFrames), fading(in, out), nullptr);
        std::vector<std::optional<double>> result;
        for (unsigned long i = 0; i < totalFrames; ++i) {
            host.clearCalls();
            animator.drawFrameAtIndex(i);
            result.push_back(calls().empty() ? std::nullopt
                                             : std::optional(light().intensity / 80.0));
            EXPECT_NEAR(light().backgroundLight, light().intensity / 4.0, 1e-9);
        }
        return result;
    }
};

TEST_F(AnimatorFadeTest, fadesInOverOneFrameMoreThanItFadesOut) {
    const auto light = fractions(100, true, true);
    for (std::size_t i = 0; i < 100; ++i) {
        if (i <= 30) {
            ASSERT_TRUE(light[i]) << i;
            EXPECT_NEAR(*light[i], static_cast<double>(i) / 30.0, 1e-12) << i;
        } else if (i < 70) {
            EXPECT_FALSE(light[i]) << i;
        } else {
            ASSERT_TRUE(light[i]) << i;
            EXPECT_NEAR(*light[i], static_cast<double>(99 - i) / 30.0, 1e-12) << i;
        }
    }
}

TEST_F(AnimatorFadeTest, startsAndEndsInTheDarkAndComesToFullLight) {
    const auto light = fractions(100, true, true);
    EXPECT_EQ(light[0], 0.0);
    EXPECT_EQ(light[30], 1.0);
    EXPECT_NEAR(*light[70], 29.0 / 30.0, 1e-12);
    EXPECT_EQ(light[99], 0.0);
}

// A tenth up to 90 frames, then 30: the jump is deliberate.
TEST_F(AnimatorFadeTest, lastsATenthOfAShortFlightAndThirtyFramesOfALongOne) {
    struct Case {
        unsigned long totalFrames;
        unsigned long length;
    };
    for (const Case& flight :
         {Case{10, 1}, Case{15, 1}, Case{19, 1}, Case{20, 2}, Case{30, 3}, Case{60, 6}, Case{70, 7},
          Case{89, 8}, Case{90, 9}, Case{91, 30}, Case{1000, 30}}) {
        const auto light = fractions(flight.totalFrames, true, false);
        unsigned long lit = 0;
        while (lit < flight.totalFrames && light[lit]) {
            ++lit;
        }
        EXPECT_EQ(lit, flight.length + 1) << flight.totalFrames;
    }
}

TEST_F(AnimatorFadeTest, outAloneLeavesTheStartAlone) {
    const auto light = fractions(100, false, true);
    for (std::size_t i = 0; i < 70; ++i) {
        EXPECT_FALSE(light[i]) << i;
    }
    EXPECT_NEAR(*light[70], 29.0 / 30.0, 1e-12);
    EXPECT_EQ(light[99], 0.0);
}

TEST_F(AnimatorFadeTest, inAloneLeavesTheEndAlone) {
    const auto light = fractions(100, true, false);
    for (std::size_t i = 31; i < 100; ++i) {
        EXPECT_FALSE(light[i]) << i;
    }
}

TEST_F(AnimatorFadeTest, ofAFlightTooShortWritesNoLight) {
    for (unsigned long totalFrames : {1ul, 2ul, 9ul}) {
        for (const auto& fraction : fractions(totalFrames, true, true)) {
            EXPECT_FALSE(fraction) << totalFrames;
        }
    }
}

TEST_F(AnimatorFadeTest, setsIntensityBeforeBackgroundLight) {
    AnimatorFade animator(keyFramesForFrames(100), fading(true, false), nullptr);
    host.clearCalls();
    animator.drawFrameAtIndex(0);
    ASSERT_EQ(calls().size(), 2u);
    EXPECT_THAT(calls()[0], testing::HasSubstr(R"("GlobalThreeD","LightSource","Intensity")"));
    EXPECT_THAT(calls()[1],
                testing::HasSubstr(R"("GlobalThreeD","LightSource","BackgroundLight")"));
}

TEST_F(AnimatorFadeTest, hidesTheAxisForTheWholeFlight) {
    auto animator =
        std::make_unique<AnimatorFade>(keyFramesForFrames(100), fading(false, true), nullptr);
    EXPECT_FALSE(axisShows());
    animator->drawFrameAtIndex(50);
    EXPECT_FALSE(axisShows());
    animator.reset();
    EXPECT_TRUE(axisShows());
}

TEST_F(AnimatorFadeTest, putsLightAndAxisBack) {
    {
        AnimatorFade animator(keyFramesForFrames(100), fading(true, true), nullptr);
        animator.drawFrameAtIndex(99);
        EXPECT_EQ(light().intensity, 0.0);
    }
    EXPECT_EQ(light().intensity, 80.0);
    EXPECT_EQ(light().backgroundLight, 20.0);
    EXPECT_TRUE(axisShows());
}

TEST_F(AnimatorFadeTest, leavesAHiddenAxisHidden) {
    frame().style.annotations.showAxis = false;
    { const AnimatorFade animator(keyFramesForFrames(100), fading(true, true), nullptr); }
    EXPECT_FALSE(axisShows());
}

TEST_F(AnimatorFadeTest, takesWhatCannotBeReadForDarkAndHidden) {
    host.failNext("CorUtilStyleGet", 3);
    { const AnimatorFade animator(keyFramesForFrames(100), fading(true, true), nullptr); }
    EXPECT_EQ(light().intensity, 0.0);
    EXPECT_EQ(light().backgroundLight, 0.0);
    EXPECT_FALSE(axisShows());
}

TEST_F(AnimatorFadeTest, thatCannotReadTheLightTakesItsSuccessorWithIt) {
    auto* successor = new AnimatorFade(keyFramesForFrames(100), fading(true, false), nullptr);
    successor->drawFrameAtIndex(0);
    host.throwAt("CorUtilStyleGet", 1);
    EXPECT_THROW(AnimatorFade(keyFramesForFrames(100), fading(false, true), successor),
                 std::runtime_error);
    EXPECT_EQ(light().intensity, 80.0);
    EXPECT_TRUE(axisShows());
}

TEST_F(AnimatorFadeTest, refusesFewerThanTwoKeyFramesBeforeItTouchesAnything) {
    EXPECT_THROW(AnimatorFade(keyFramesWithCounts({5}), fading(true, true), nullptr),
                 KeyFrameError);
    EXPECT_THAT(calls(), IsEmpty());
}

} // namespace
} // namespace corvane::test
