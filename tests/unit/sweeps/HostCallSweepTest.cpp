// Each operation of the host that may answer a failure does so once, in each kind of flight.
#include "tests/unit/sweeps/Aftermath.h"
#include "tests/unit/sweeps/Flights.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::test {
namespace {

using testing::IsEmpty;

using Calls = std::vector<std::string>;

class HostCallSweep : public testing::TestWithParam<FlightKind> {};

Calls callsOf(const FlightKind& kind) {
    FlightScene scene;
    kind.prepare(scene, kind);
    scene.host.clearCalls();
    EXPECT_EQ(kind.play(scene, kind), "");
    return scene.host.calls();
}

bool isCallOf(const std::string& call, const std::string& operation) {
    return call.starts_with(operation + "(");
}

// What the user is told when this call of a flight fails: refused values and pictures are no reason
// to end it.
std::string causeOf(const std::string& call) {
    if (isCallOf(call, "CorUtilFrameGetPlotType")) {
        return "The current frame must be in 3D Cartesian mode.";
    }
    if (isCallOf(call, "CorUtilStatusCheckPercentDone")) {
        return "Animation canceled.";
    }
    if (isCallOf(call, "CorUtilExportStart")) {
        return "Unable to start animation export.";
    }
    if (call.starts_with(R"(CorUtilStyleGet("ExportSetup","ExportFormat")")) {
        return "The export file format must be set to an animation format \n"
               "before animating to file.";
    }
    return {};
}

// Whether the call saves or puts back the value of this keyword.
bool savesOrRestores(const Calls& calls, std::size_t index, const std::string& keyword) {
    const auto has = [&](const char* operation) {
        return [&, operation](const std::string& call) {
            return isCallOf(call, operation) && call.find('"' + keyword + '"') != std::string::npos;
        };
    };
    const auto first = std::find_if(calls.begin(), calls.end(), has("CorUtilStyleGet"));
    const auto last = std::find_if(calls.rbegin(), calls.rend(), has("CorUtilStyleSet"));
    const auto at = calls.begin() + static_cast<std::ptrdiff_t>(index);
    return at == first || (last != calls.rend() && at == last.base() - 1);
}

// Puts back what no add-on can when the host keeps this very call from it.
void forgive(Appearance& after, const Appearance& before, const Calls& calls, std::size_t index) {
    const auto isKept = [&](const std::string& keyword) {
        return savesOrRestores(calls, index, keyword);
    };
    if (isKept("Intensity")) {
        after.style.light.intensity = before.style.light.intensity;
    }
    if (isKept("BackgroundLight")) {
        after.style.light.backgroundLight = before.style.light.backgroundLight;
    }
    if (isKept("Show")) {
        after.style.annotations.showAxis = before.style.annotations.showAxis;
    }
    if (isKept("TimeAnchor")) {
        after.style.streamTiming.timeAnchor = before.style.streamTiming.timeAnchor;
    }
    if (isKept("UseDisplayLists")) {
        after.displayLists = before.displayLists;
    }
    // Each width that is set saves it and puts it back.
    if (calls.at(index).find("\"DrawInPerspective\"") != std::string::npos) {
        after.perspective = before.perspective;
    }
}

struct Failed {
    std::string operation; // empty: none
    std::size_t callsBefore;
    std::string told;
};

// What a call to this operation begins with. Argument lists and strings are no calls of their own:
// lists are made for style values, and strings by the call itself.
std::string beginningOf(const std::string& operation) {
    if (operation.starts_with("CorUtilArgList")) {
        return "CorUtilStyle";
    }
    return operation == "CorUtilStringAlloc" ? std::string() : operation + '(';
}

// Which call of a flight without failures that was: those that listeners make meanwhile come first.
std::size_t callThatFailed(const Failed& failed, const Calls& calls) {
    const std::string beginning = beginningOf(failed.operation);
    std::size_t index = failed.callsBefore;
    while (!calls.at(index).starts_with(beginning)) {
        ++index;
    }
    return index;
}

Failed playWithFailure(FlightScene& scene, const FlightKind& kind, std::size_t n) {
    scene.host.clearCalls();
    scene.host.failAt(n);
    const std::string told = kind.play(scene, kind);
    const Failed failed{scene.host.failedAt(), scene.host.callsBeforeFailure(), told};
    scene.host.failAt(0);
    return failed;
}

void expectTold(const FlightKind& kind, const std::string& told, const std::string& call) {
    if (kind.isPlain()) {
        EXPECT_EQ(told, causeOf(call)) << call;
    } else if (!told.empty()) {
        EXPECT_THAT(told, testing::EndsWith(causeOf(call))) << call;
    }
}

// False when there are fewer calls.
bool failAt(std::size_t n, const FlightKind& kind, const Calls& calls) {
    const std::string what = kind.name + ", failure " + std::to_string(n);
    FlightScene scene;
    kind.prepare(scene, kind);
    const Appearance before(scene.host);
    const Failed failed = playWithFailure(scene, kind, n);
    if (failed.operation.empty()) {
        return false;
    }
    const std::size_t index = callThatFailed(failed, calls);
    const std::string where = what + " in " + calls.at(index);
    expectAtRest(scene, where);
    EXPECT_THAT(scene.host.misuse(), IsEmpty()) << where;
    Appearance after(scene.host);
    forgive(after, before, calls, index);
    expectSame(after, before, where);
    expectTold(kind, failed.told, calls.at(index));
    expectPlays(scene, kind, where);
    return true;
}

TEST_P(HostCallSweep, leavesNothingBehind) {
    const FlightKind& kind = GetParam();
    const Calls calls = callsOf(kind);
    std::size_t n = 1;
    while (failAt(n, kind, calls)) {
        ++n;
    }
    RecordProperty("failures", std::to_string(n - 1));
    EXPECT_GT(n, 100U);
}

INSTANTIATE_TEST_SUITE_P(Kinds, HostCallSweep, testing::ValuesIn(flightKinds()),
                         [](const auto& kind) { return kind.param.name; });

} // namespace
} // namespace corvane::test
