// How long does it take to compute the views of a flight, and how much memory do they hold?
#include "addon/base/HostLock.h"
#include "addon/engine/AnimatorKeyFrame.h"
#include "tests/cases/FlightCases.h"
#include "tests/support/MemoryHost.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace corvane::test {
namespace {

using corutiltools::AnimatorKeyFrame;
using corutiltools::HostLock;
using corutiltools::KeyFrame_s;
using corutiltools::View;

using KeyFrames = std::vector<KeyFrame_s>;

bool everyResultIsRight = true;

// The host as a flight meets it: locked by the driver, and nobody writing down what is called.
class QuietHost {
public:
    QuietHost() {
        m_host.frame().view.rotationOrigin = {};
        m_host.session().trace().disconnect();
    }

    void forgetProgress() { m_host.status().clear(); }

private:
    MemoryHost m_host;
    HostLock m_lock;
};

// From one corner of a sphere to another.
KeyFrames longFlight(unsigned long frames) {
    KeyFrames keyFrames = flightCase("TiltedOrbit").keyFrames;
    keyFrames[0].frameCount = frames - 1;
    return keyFrames;
}

// To and fro in short segments.
KeyFrames flightOfManyKeyFrames(unsigned long frames) {
    const KeyFrames ends = flightCase("TiltedOrbit").keyFrames;
    KeyFrames keyFrames;
    for (unsigned long frame = 0; frame + 10 < frames; frame += 10) {
        keyFrames.push_back(ends[keyFrames.size() % 2]);
        keyFrames.back().frameCount = 10;
    }
    const unsigned long left = frames - 1 - 10 * keyFrames.size();
    keyFrames.push_back(ends[keyFrames.size() % 2]);
    keyFrames.back().frameCount = left;
    keyFrames.push_back(ends[keyFrames.size() % 2]);
    return keyFrames;
}

// Key frames alone: what a frame costs that is not computed.
KeyFrames flightWithoutSteps(unsigned long frames) {
    KeyFrames keyFrames(frames, flightCase("TiltedOrbit").keyFrames[0]);
    for (KeyFrame_s& keyFrame : keyFrames) {
        keyFrame.frameCount = 1;
    }
    return keyFrames;
}

// All views look at the centre from the distance of the key frames.
bool isOnTheSphere(const View& view) {
    const double distance = std::hypot(view.x(), view.y(), view.z());
    return std::abs(distance - 10.0) < 1e-6;
}

bool isRight(const std::vector<View>& views, unsigned long frames) {
    return views.size() == frames && isOnTheSphere(views[frames / 2]) &&
           isOnTheSphere(views[frames - 2]);
}

void buildViews(benchmark::State& state, KeyFrames (*flight)(unsigned long)) {
    const auto frames = static_cast<unsigned long>(state.range(0));
    const KeyFrames keyFrames = flight(frames);
    QuietHost host;
    double bytes = 0.0;
    for ([[maybe_unused]] auto unused : state) {
        const AnimatorKeyFrame animator(keyFrames, nullptr);
        if (!isRight(animator.views(), frames)) {
            everyResultIsRight = false;
            state.SkipWithError("the views are wrong");
            return;
        }
        bytes = static_cast<double>(animator.views().capacity() * sizeof(View));
        host.forgetProgress();
    }
    state.SetComplexityN(state.range(0));
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["bytes_per_view"] = bytes / static_cast<double>(frames);
}

void sizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)
        ->Range(1000, 1000000)
        ->Unit(benchmark::kMillisecond)
        ->Complexity(benchmark::oN);
}

BENCHMARK_CAPTURE(buildViews, oneSegment, longFlight)->Apply(sizes);
BENCHMARK_CAPTURE(buildViews, manyKeyFrames, flightOfManyKeyFrames)->Apply(sizes);
BENCHMARK_CAPTURE(buildViews, keyFramesAlone, flightWithoutSteps)->Apply(sizes);

} // namespace
} // namespace corvane::test

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return corvane::test::everyResultIsRight ? 0 : 1;
}
