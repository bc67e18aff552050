// Counts what reading and drawing cost, for tests and benchmarks.
#pragma once

#include <atomic>

namespace corvane::scene {

/// One object is shared by the readers and the renderer; files may be read on other threads.
struct SceneStatistics {
    std::atomic<long> fileReads{0};
    std::atomic<long> surfaceRuns{0};
    std::atomic<long> sliceRuns{0};
    std::atomic<long> contourRuns{0};
    std::atomic<long> streamRuns{0}; ///< integrations of all traces of a frame
    std::atomic<long> tubeRuns{0};
    std::atomic<long> renders{0};
};

} // namespace corvane::scene
