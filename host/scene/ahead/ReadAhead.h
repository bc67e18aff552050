// Prepares what will be needed next, while the picture of now is drawn.
#pragma once

#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <thread>
#include <vector>

namespace corvane::scene {

/// One worker thread. Meshes and the filters over them are used by one thread at a time: who does
/// so holds meshMutex(), as the worker does for each step of its work.
class ReadAhead {
public:
    using Steps = std::vector<std::function<void()>>;

    ReadAhead() = default;
    ~ReadAhead(); ///< waits for the step that runs, and drops the others
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    /// Runs the steps in order on the worker, in place of those of the same owner that still wait.
    /// What a step throws ends the work of its owner and is dropped: whoever needs the thing later
    /// meets the failure again.
    void start(const void* owner, Steps steps);
    /// Returns when nothing runs and nothing waits.
    void wait();

    std::mutex& meshMutex() { return m_meshes; }

private:
    struct Work {
        const void* owner;
        Steps steps;
        std::size_t next = 0;
    };

    void work();
    /// Takes the next step; empty when the worker must end.
    std::function<void()> nextStep();
    void giveUp(const void* owner);

    std::mutex m_meshes;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::list<Work> m_waiting;
    const void* m_owner = nullptr; ///< of the step that runs
    bool m_isRunning = false;
    bool m_mustEnd = false;
    std::thread m_thread; ///< started by the first work
};

} // namespace corvane::scene
