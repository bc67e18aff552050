// One flight with everything on, and each call of the host failing in turn.
#include "addon/engine/Animate.h"

#include "addon/base/KeyFrameError.h"
#include "tests/cases/FlightCases.h"
#include "tests/support/MemoryHost.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/addon/EngineTest.h"

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

namespace corvane::test {
namespace {

using namespace corutiltools;

const KeyFrames& sweptFlight() {
    return flightCase("TwoKeysCountTwo").keyFrames;
}

Settings_s everythingToFile() {
    return Settings_s{
        {true, TimeAnimationOperation_Forward, 1}, Destination_ToFile, true, true, true};
}

// A host of its own for each flight of a sweep.
struct Scene {
    Scene() {
        host.session().exportSetup().fileName = folder.file("flight.avi");
        host.frame().style.streamTiming.timeAnchor = 2.0;
        host.program().recorder().start();
    }

    void fly() {
        Animate(sweptFlight(), 0, sweptFlight().size(), everythingToFile(), MacroOption_Record);
    }

    TempFolder folder;
    MemoryHost host;
};

void expectAtRest(MemoryHost& host, const std::string& what) {
    EXPECT_EQ(host.session().locks().depth(), 0) << what;
    EXPECT_EQ(host.session().drawing().suspensions(), 0) << what;
    EXPECT_FALSE(host.session().status().isActive()) << what;
    EXPECT_FALSE(host.session().exporter().isRecording()) << what;
    EXPECT_THAT(host.misuse(), IsEmpty()) << what;
}

std::string nameOf(const std::string& call) {
    return call.substr(0, call.find('('));
}

// The calls of the flight that a scope makes when it is left: the host failing there ends the
// program, so they are not made to throw.
bool isCleanUp(const std::string& call) {
    static const std::set<std::string> names{"CorUtilLockFinish", "CorUtilStatusFinishPercentDone",
                                             "CorUtilSetDealloc", "CorUtilExportFinish"};
    return call == "CorUtilDrawGraphics(TRUE)" || names.count(nameOf(call)) > 0;
}

struct Throw {
    std::string operation;
    std::size_t k;
};

// Every call before the clean-up of the whole flight, which begins where the display lists come
// back.
std::vector<Throw> throwsOfAFlight() {
    Scene scene;
    scene.fly();
    const std::vector<std::string> calls = scene.host.calls();
    const std::string firstOfCleanUp =
        R"(CorUtilStyleSet("Interface","UseDisplayLists", IValue=1, DValue=1))";
    const auto end = std::find(calls.begin(), calls.end(), firstOfCleanUp);
    std::vector<Throw> result;
    std::map<std::string, std::size_t> seen;
    for (auto call = calls.begin(); call != end; ++call) {
        const std::size_t k = ++seen[nameOf(*call)];
        if (!isCleanUp(*call)) {
            result.push_back({nameOf(*call), k});
        }
    }
    return result;
}

TEST(AnimateSweep, everyCallThatThrowsLeavesTheHostAsItWas) {
    const std::vector<Throw> all = throwsOfAFlight();
    ASSERT_GT(all.size(), 100u);
    for (const Throw& one : all) {
        const std::string what = one.operation + " " + std::to_string(one.k);
        Scene scene;
        const host::FrameStyle before = scene.host.frame().style;
        scene.host.throwAt(one.operation, one.k);
        EXPECT_THROW(scene.fly(), std::runtime_error) << what;
        expectAtRest(scene.host, what);
        EXPECT_EQ(scene.host.frame().style, before) << what;
        EXPECT_TRUE(usesDisplayLists()) << what;
        EXPECT_THAT(scene.host.recordedCommands(), IsEmpty()) << what;
    }
}

// A refusal is no reason to fail, except where the user is told; whatever happens, nothing stays
// locked, suspended, open or half written.
TEST(AnimateSweep, everyCallThatRefusesLeavesNothingBehind) {
    for (std::size_t k = 1;; ++k) {
        Scene scene;
        scene.host.failAt(k);
        try {
            scene.fly();
        } catch (const KeyFrameError& error) {
            EXPECT_STRNE(error.what(), "");
        }
        if (!scene.host.hasFailedAt()) {
            EXPECT_GT(k, 100u);
            break;
        }
        expectAtRest(scene.host, "refusal " + std::to_string(k));
    }
}

TEST(AnimateSweep, everyStopLeavesTheHostAsItWas) {
    Scene complete;
    complete.fly();
    const std::size_t checks = complete.host.count("CorUtilStatusCheckPercentDone");
    ASSERT_EQ(checks, 1u + 3u);
    for (std::size_t k = 1; k <= checks; ++k) {
        const std::string what = "stop " + std::to_string(k);
        Scene scene;
        const host::FrameStyle before = scene.host.frame().style;
        scene.host.stopAtCheck(k);
        EXPECT_THROW(scene.fly(), KeyFrameError) << what;
        expectAtRest(scene.host, what);
        EXPECT_EQ(scene.host.frame().style, before) << what;
        EXPECT_TRUE(usesDisplayLists()) << what;
        EXPECT_FALSE(scene.folder.has("flight.avi")) << what;
        EXPECT_THAT(scene.host.recordedCommands(), IsEmpty()) << what;
    }
}

} // namespace
} // namespace corvane::test
