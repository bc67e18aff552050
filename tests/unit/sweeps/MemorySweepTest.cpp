// Allocations of add-on and core fail, in each kind of flight of five frames.
// docs/dev/flights-that-fail.md tells what must hold.
#include "tests/unit/sweeps/Aftermath.h"
#include "tests/unit/sweeps/FailingNew.h"
#include "tests/unit/sweeps/Flights.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <optional>
#include <utility>

namespace corvane::test {
namespace {

using testing::AnyOf;
using testing::Each;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::string outOfMemory = "Out of memory.";
constexpr std::size_t forGood = std::numeric_limits<std::size_t>::max();

class MemorySweep : public testing::TestWithParam<FlightKind> {};

// A trace that needs no memory of the flight's, so that only what is behind it fails.
class Trace {
public:
    Trace(MemoryHost& host, bool hearsCalls) {
        host::TraceSinks sinks;
        sinks.onMisuse = [this](const std::string& what) { keep(what); };
        if (hearsCalls) {
            sinks.onCall = [](const host::TraceRecord& record) { EXPECT_NE(record.call, ""); };
        }
        host.session().trace().connect(std::move(sinks));
    }

    const std::vector<std::string>& misuse() const { return m_misuse; }

private:
    void keep(const std::string& what) {
        const FailingNew::Pause pause;
        m_misuse.push_back(what);
    }

    std::vector<std::string> m_misuse;
};

// What the user was told; nothing when there was no such allocation.
std::optional<std::string> playWithout(FlightScene& scene, const FlightKind& kind, std::size_t n,
                                       std::size_t count) {
    std::string told;
    const FailingNew failing(n, count);
    try {
        told = kind.play(scene, kind);
    } catch (const std::bad_alloc&) {
        // Only where there is no memory for the flight's own words, and no guard as in a host.
        EXPECT_TRUE(count > 1 && kind.isPlain());
        told = outOfMemory;
    }
    return failing.hasFailed() ? std::optional(std::move(told)) : std::nullopt;
}

void expectCause(const std::string& told, const std::string& what) {
    EXPECT_THAT(told, AnyOf(IsEmpty(), outOfMemory, EndsWith("Animation canceled."),
                            EndsWith("Not enough memory to produce the animation.\n"
                                     "Try reducing the number of total frames in the animation."),
                            "Unable to start animation export.",
                            StartsWith("There is not enough memory")))
        << what;
}

// Whom nobody tells anything has a whole film, or a host that knows why not.
void expectComplete(FlightScene& scene, const FlightKind& kind, const std::string& what) {
    if (kind.toFile && !scene.host.session().exporter().hasFailed()) {
        ASSERT_EQ(scene.host.movies().movies().size(), 1U) << what;
        EXPECT_EQ(scene.host.movies().movies().back().pictures, kind.frames) << what;
        EXPECT_TRUE(scene.folder.has("flight.avi")) << what;
    }
}

void expectAsBefore(FlightScene& scene, const Trace& trace, const Appearance& before,
                    const std::string& what) {
    expectSame(Appearance(scene.host), before, what);
    // Nothing is blamed on the add-on.
    EXPECT_THAT(trace.misuse(), Each(HasSubstr("std::bad_alloc"))) << what;
}

// False when there are fewer allocations.
bool failAt(std::size_t n, std::size_t count, const FlightKind& kind, bool isTraced) {
    const std::string what = kind.name + ", allocation " + std::to_string(n);
    FlightScene scene;
    const Trace trace(scene.host, isTraced);
    kind.prepare(scene, kind);
    const Appearance before(scene.host);
    const std::optional<std::string> told = playWithout(scene, kind, n, count);
    if (!told) {
        return false;
    }
    closeDialogs(scene);
    expectAtRest(scene, what);
    expectCause(*told, what);
    if (count == 1) {
        expectAsBefore(scene, trace, before, what);
    }
    if (told->empty() && kind.isPlain()) {
        expectComplete(scene, kind, what);
    }
    expectPlays(scene, kind, what);
    return true;
}

void sweep(std::size_t count, const FlightKind& kind, bool isTraced) {
    std::size_t n = 1;
    while (failAt(n, count, kind, isTraced)) {
        ++n;
    }
    testing::Test::RecordProperty("failures", std::to_string(n - 1));
    EXPECT_GT(n, 50U);
}

TEST_P(MemorySweep, ofSingleAllocations) {
    sweep(1, GetParam(), false);
}

TEST_P(MemorySweep, ofAllAllocationsFromThereOn) {
    sweep(forGood, GetParam(), false);
}

// Texts of calls are made only while somebody hears them.
TEST(TracedMemorySweep, ofSingleAllocationsWithATrace) {
    sweep(1, flightKindsOfFiveFrames().front(), true);
}

INSTANTIATE_TEST_SUITE_P(Kinds, MemorySweep, testing::ValuesIn(flightKindsOfFiveFrames()),
                         [](const auto& kind) { return kind.param.name; });

} // namespace
} // namespace corvane::test
