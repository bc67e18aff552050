// The frames that a flight plays.
#include "addon/engine/AnimationManager.h"

#include "addon/base/KeyFrameError.h"
#include "addon/engine/AnimatorKeyFrame.h"
#include "tests/unit/addon/EngineTest.h"

#include <memory>
#include <stdexcept>

namespace corvane::test {
namespace {

using namespace corutiltools;

// Ten frames to the second key frame, twenty more to the third; the width is the frame number.
class AnimationManagerTest : public EngineTest {
protected:
    AnimationManagerTest() {
        const double numbers[]{0.0, 10.0, 30.0};
        for (std::size_t i = 0; i < keyFrames.size(); ++i) {
            keyFrames[i].view.setWidth(1.0 + numbers[i]);
        }
    }

    std::vector<unsigned long> framesPlayed(unsigned long startIndex, unsigned long count) {
        AnimationManager manager(keyFrames, startIndex, count, plainSettings());
        std::vector<unsigned long> frames;
        while (manager.hasNextFrame()) {
            manager.drawNextFrame();
            frames.push_back(static_cast<unsigned long>(view().width - 0.5));
        }
        return frames;
    }

    unsigned long steps(unsigned long startIndex, unsigned long count) {
        return AnimationManager(keyFrames, startIndex, count, plainSettings()).numFrames();
    }

    static std::vector<unsigned long> fromTo(unsigned long first, unsigned long last) {
        std::vector<unsigned long> frames;
        for (unsigned long frame = first; frame <= last; ++frame) {
            frames.push_back(frame);
        }
        return frames;
    }

    KeyFrames keyFrames = keyFramesWithCounts({10, 20, 5});
};

TEST_F(AnimationManagerTest, playsEverything) {
    EXPECT_EQ(framesPlayed(0, 3), fromTo(0, 30));
}

TEST_F(AnimationManagerTest, playsEverythingWhateverTheStart) {
    EXPECT_EQ(framesPlayed(2, 3), fromTo(0, 30));
}

TEST_F(AnimationManagerTest, playsFromOneKeyFrameUpToAnother) {
    EXPECT_EQ(framesPlayed(1, 1), fromTo(10, 30));
    EXPECT_EQ(framesPlayed(0, 1), fromTo(0, 10));
    EXPECT_EQ(framesPlayed(0, 2), fromTo(0, 30));
}

TEST_F(AnimationManagerTest, playsOneKeyFrameAlone) {
    EXPECT_EQ(framesPlayed(2, 0), fromTo(30, 30));
    EXPECT_EQ(framesPlayed(0, 0), fromTo(0, 0));
}

// One step more than frames: deliberate.
TEST_F(AnimationManagerTest, countsOneStepMoreThanItDraws) {
    EXPECT_EQ(steps(0, 3), 32u);
    EXPECT_EQ(steps(1, 1), 22u);
    EXPECT_EQ(steps(2, 0), 2u);
}

TEST_F(AnimationManagerTest, refusesARangeBeyondTheList) {
    EXPECT_THROW(steps(2, 2), std::out_of_range);
    EXPECT_THROW(steps(4, 0), std::out_of_range);
}

TEST_F(AnimationManagerTest, thatRefusesARangeTakesItsChainWithIt) {
    Settings_s settings = plainSettings();
    settings.fadeOut = true;
    EXPECT_THROW(AnimationManager(keyFrames, 2, 2, settings), std::out_of_range);
    EXPECT_TRUE(frame().style.annotations.showAxis);
}

TEST_F(AnimationManagerTest, takesItsChainWithIt) {
    Settings_s settings = plainSettings();
    settings.fadeIn = true;
    auto manager = std::make_unique<AnimationManager>(keyFrames, 0, 3, settings);
    manager->drawNextFrame();
    EXPECT_EQ(frame().style.light.intensity, 0.0);
    manager.reset();
    EXPECT_EQ(frame().style.light, host::LightStyle{});
}

TEST_F(AnimationManagerTest, tellsTheChainThatTheUserStopped) {
    Settings_s settings = plainSettings();
    settings.destination = Destination_ToFile;
    AnimationManager manager(keyFrames, 0, 3, settings);
    host.clearCalls();
    manager.cancelAnimation();
    EXPECT_THAT(calls(), ElementsAre("CorUtilExportIsRecording()"));
}

} // namespace
} // namespace corvane::test
