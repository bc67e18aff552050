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

KeyFrames const& sweptFlight() {
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

void expectAtRest(MemoryHost& host, std::string const& what) {
    EXPECT_EQ(host.session().locks().depth(), 0) << what;
    EXPECT_EQ(host.session().drawing().suspensions(), 0) << what;
    EXPECT_FALSE(host.session().status().isActive()) << what;
    EXPECT_FALSE(host.session().exporter().isRecording()) << what;
    EXPECT_THAT(host.misuse(), IsEmpty()) << what;
}

std::string nameOf(std::string const& call) {
    return call.substr(0, call.find('('));
}

// The calls of the flight that a scope makes when it is left: the host failing there ends the
// program, so they are not made to throw.
bool isCleanUp(std::string const& call) {
    static std::set<std::string> const names{"CorUtilLockFinish", "CorUtilStatusFinishPercentDone",
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
    std::vector<std::string> const calls = scene.host.calls();
    std::string const firstOfCleanUp =
        R"(CorUtilStyleSet("Interface","UseDisplayLists", IValue=1, DValue=1))";
    auto const end = std::find(calls.begin(), calls.end(), firstOfCleanUp);
    std::vector<Throw> result;
    std::map<std::string, std::size_t> seen;
    for (auto call = calls.begin(); call != end; ++call) {
        std::size_t const k = ++seen[nameOf(*call)];
        if (!isCleanUp(*call)) {
            result.push_back({nameOf(*call), k});
        }
    }
    return result;
}

TEST(AnimateSweep, everyCallThatThrowsLeavesTheHostAsItWas) {
    std::vector<Throw> const all = throwsOfAFlight();
    ASSERT_GT(all.size(), 100u);
    for (Throw const& one : all) {
        std::string const what = one.operation + " " + std::to_string(one.k);
        Scene scene;
        host::FrameStyle const before = scene.host.frame().style;
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
        } catch (KeyFrameError const& error) {
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
    std::size_t const checks = complete.host.count("CorUtilStatusCheckPercentDone");
    ASSERT_EQ(checks, 1u + 3u);
    for (std::size_t k = 1; k <= checks; ++k) {
        std::string const what = "stop " + std::to_string(k);
        Scene scene;
        host::FrameStyle const before = scene.host.frame().style;
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
