// Hosts that fail while something is put back: the program ends, as no destructor throws.
#include "addon/base/SuspendGraphics.h"
#include "addon/engine/AnimatorFade.h"
#include "addon/engine/AnimatorStreams.h"
#include "addon/engine/AnimatorToFile.h"
#include "addon/engine/FramePopper.h"
#include "addon/engine/Status.h"
#include "addon/engine/SuspendDisplayLists.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/EngineTest.h"

#include <type_traits>

namespace corvane::test {
namespace {

using namespace corutiltools;

static_assert(std::is_nothrow_destructible_v<AnimatorFade>);
static_assert(std::is_nothrow_destructible_v<AnimatorStreams>);
static_assert(std::is_nothrow_destructible_v<AnimatorToFile>);
static_assert(std::is_nothrow_destructible_v<FramePopper>);
static_assert(std::is_nothrow_destructible_v<Status>);
static_assert(std::is_nothrow_destructible_v<SuspendDisplayLists>);
static_assert(std::is_nothrow_destructible_v<SuspendGraphics>);

class DestructorDeathTest : public EngineTest {
protected:
    const KeyFrames keyFrames = keyFramesForFrames(10);
};

TEST_F(DestructorDeathTest, streamsCannotPutTheAnchorBack) {
    EXPECT_DEATH(
        {
            const AnimatorStreams animator(keyFrames, nullptr);
            host.throwAt("CorUtilStyleSet");
        },
        "terminate called");
}

TEST_F(DestructorDeathTest, fadeCannotPutTheLightBack) {
    EXPECT_DEATH(
        {
            const AnimatorFade animator(keyFrames, plainSettings(), nullptr);
            host.throwAt("CorUtilStyleSet");
        },
        "terminate called");
}

TEST_F(DestructorDeathTest, exportCannotBeFinished) {
    EXPECT_DEATH(
        {
            const TempFolder folder;
            host.session().exportSetup().fileName = folder.file("flight.avi");
            AnimatorToFile animator(keyFrames);
            animator.drawFrameAtIndex(0);
            host.throwAt("CorUtilExportFinish");
        },
        "terminate called");
}

} // namespace
} // namespace corvane::test
