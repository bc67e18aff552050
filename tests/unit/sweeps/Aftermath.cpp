#include "tests/unit/sweeps/Aftermath.h"

#include "addon/engine/FramePopperAbstract.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {

using testing::AnyOf;
using testing::ElementsAre;
using testing::IsEmpty;

void expectAtRest(FlightScene& scene, const std::string& what) {
    host::Session& session = scene.host.session();
    EXPECT_EQ(session.locks().depth(), 0) << what;
    EXPECT_EQ(session.drawing().suspensions(), 0) << what;
    EXPECT_FALSE(session.status().isActive()) << what;
    EXPECT_FALSE(session.exporter().isRecording()) << what;
    EXPECT_EQ(corutiltools::FramePopperAbstract::numActivePoppers(), 0U) << what;
    EXPECT_THAT(scene.folder.names(), AnyOf(IsEmpty(), ElementsAre("flight.avi"))) << what;
    const bool isComplete = !scene.host.movies().movies().empty() &&
                            scene.host.movies().movies().back().finished &&
                            !session.exporter().hasFailed();
    EXPECT_EQ(scene.folder.has("flight.avi"), isComplete) << what;
}

void expectSame(const Appearance& after, const Appearance& before, const std::string& what) {
    EXPECT_EQ(after.style, before.style) << what;
    EXPECT_EQ(after.displayLists, before.displayLists) << what;
    EXPECT_EQ(after.perspective, before.perspective) << what;
}

void expectPlays(FlightScene& scene, const FlightKind& kind, const std::string& what) {
    const std::size_t pictures = scene.host.renderer().renders();
    EXPECT_EQ(kind.play(scene, kind), "") << what;
    // On the screen there may be pictures that were due before.
    EXPECT_GE(scene.host.renderer().renders() - pictures, kind.frames) << what;
    if (kind.toFile) {
        ASSERT_FALSE(scene.host.movies().movies().empty()) << what;
        EXPECT_EQ(scene.host.movies().movies().back().pictures, kind.frames) << what;
    }
    expectAtRest(scene, what);
}

} // namespace corvane::test
