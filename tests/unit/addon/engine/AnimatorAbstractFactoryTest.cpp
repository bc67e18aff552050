// How the chain of a flight is put together.
#include "addon/engine/AnimatorAbstractFactory.h"

#include "addon/base/HostLock.h"
#include "addon/base/KeyFrameError.h"
#include "addon/engine/AnimatorKeyFrame.h"
#include "tests/cases/FlightCases.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/EngineTest.h"

#include <memory>
#include <stdexcept>

namespace corvane::test {
namespace {

using namespace corutiltools;

class AnimatorAbstractFactoryTest : public EngineTest {
protected:
    AnimatorAbstractFactoryTest() {
        host.session().exportSetup().fileName = folder.file("flight.avi");
    }

    std::unique_ptr<AnimatorInterface> chainFor(const Settings_s& settings) {
        AnimatorAbstractFactory factory;
        return std::unique_ptr<AnimatorInterface>(factory.createAnimator(keyFrames, settings));
    }

    // What one frame does to the host, one word for each animator that had a share in it.
    std::vector<std::string> effectsOfAFrame(const Settings_s& settings) {
        const auto chain = chainFor(settings);
        host.clearCalls();
        chain->drawFrame(0);
        std::vector<std::string> effects;
        for (const std::string& call : calls()) {
            const std::string effect = effectOf(call);
            if (!effect.empty() && (effects.empty() || effects.back() != effect)) {
                effects.push_back(effect);
            }
        }
        return effects;
    }

    const TempFolder folder;
    const KeyFrames keyFrames = flightCase("Orbit").keyFrames;

private:
    static std::string effectOf(const std::string& call) {
        struct Sign {
            std::string beginning;
            std::string effect;
        };
        const std::vector<Sign> signs{
            {"CorUtilStyleSet(\"ThreeDView\"", "view"},
            {"CorUtilStyleSet(\"GlobalThreeD\",\"LightSource\"", "light"},
            {"CorUtilStyleSet(\"StreamAttributes\"", "streamtraces"},
            {"CorUtilSolutionTimeSetCurrent", "time"},
            {"CorUtilRedraw(TRUE)", "screen"},
            {"CorUtilExportStart", "file"},
        };
        for (const Sign& sign : signs) {
            if (call.starts_with(sign.beginning)) {
                return sign.effect;
            }
        }
        return "";
    }
};

Settings_s everything(Destination_e destination) {
    return Settings_s{{true, TimeAnimationOperation_Forward, 1}, destination, true, true, true};
}

TEST_F(AnimatorAbstractFactoryTest, plainFlightSetsTheViewAndRedraws) {
    EXPECT_THAT(effectsOfAFrame(plainSettings()), ElementsAre("view", "screen"));
}

TEST_F(AnimatorAbstractFactoryTest, fullFlightAppliesItsEffectsFromTheOutsideIn) {
    EXPECT_THAT(effectsOfAFrame(everything(Destination_OnScreen)),
                ElementsAre("view", "light", "streamtraces", "time", "screen"));
    EXPECT_THAT(effectsOfAFrame(everything(Destination_ToFile)),
                ElementsAre("view", "light", "streamtraces", "time", "file"));
}

TEST_F(AnimatorAbstractFactoryTest, streamtracesAndTimeGoToAFile) {
    Settings_s settings = everything(Destination_ToFile);
    settings.fadeIn = false;
    settings.fadeOut = false;
    EXPECT_THAT(effectsOfAFrame(settings), ElementsAre("view", "streamtraces", "time", "file"));
}

TEST_F(AnimatorAbstractFactoryTest, eitherFadeAddsTheLight) {
    Settings_s settings = plainSettings();
    settings.fadeIn = true;
    EXPECT_THAT(effectsOfAFrame(settings), ElementsAre("view", "light", "screen"));

    settings = plainSettings();
    settings.fadeOut = true;
    const auto chain = chainFor(settings);
    EXPECT_FALSE(frame().style.annotations.showAxis);
}

TEST_F(AnimatorAbstractFactoryTest, eachOptionStandsAlone) {
    Settings_s settings = plainSettings();
    settings.timeOptions.animateTime = true;
    EXPECT_THAT(effectsOfAFrame(settings), ElementsAre("view", "time", "screen"));

    settings = plainSettings();
    settings.animateStreamtraces = true;
    EXPECT_THAT(effectsOfAFrame(settings), ElementsAre("view", "streamtraces", "screen"));
}

TEST_F(AnimatorAbstractFactoryTest, anyOtherDestinationIsAFile) {
    Settings_s settings = plainSettings();
    settings.destination = static_cast<Destination_e>(7);
    EXPECT_THAT(effectsOfAFrame(settings), ElementsAre("view", "file"));
}

TEST_F(AnimatorAbstractFactoryTest, headIsTheView) {
    const auto chain = chainFor(plainSettings());
    EXPECT_NE(dynamic_cast<AnimatorKeyFrame*>(chain.get()), nullptr);
}

TEST_F(AnimatorAbstractFactoryTest, refusesFewerThanTwoKeyFrames) {
    AnimatorAbstractFactory factory;
    for (Destination_e destination : {Destination_OnScreen, Destination_ToFile}) {
        EXPECT_THROW(factory.createAnimator(keyFramesWithCounts({3}), everything(destination)),
                     KeyFrameError);
    }
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AnimatorAbstractFactoryTest, thatFailsOnTheWayLeavesNothingBehind) {
    const host::FrameStyle before = frame().style;
    // In turn: the streamtraces, the light, and the views that come last.
    for (const auto& [call, k] : std::vector<std::pair<std::string, std::size_t>>{
             {"CorUtilStyleGet", 1},
             {"CorUtilStyleGet", 3},
             {"CorUtilStyleGet", 5},
             {"CorUtilViewRotate3D", 10},
         }) {
        host.throwAt(call, k);
        EXPECT_THROW(chainFor(everything(Destination_OnScreen)), std::runtime_error);
        EXPECT_EQ(frame().style, before) << call << k;
        EXPECT_TRUE(hostIsAtRest()) << call << k;
    }
}

TEST_F(AnimatorAbstractFactoryTest, viewsAreComputedOnlyWhenTheRestExists) {
    host.throwAt("CorUtilStyleGet", 1);
    EXPECT_THROW(chainFor(everything(Destination_OnScreen)), std::runtime_error);
    EXPECT_THAT(callsTo("CorUtilStatusStartPercentDone"), IsEmpty());
}

} // namespace
} // namespace corvane::test
