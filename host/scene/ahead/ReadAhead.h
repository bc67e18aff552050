// A worker thread that prepares the next pictures while the current one is drawn.
#pragma once

#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <thread>
#include <vector>

namespace corvane::scene {

/// Meshes and the filters that read them may be used by one thread at a time only: whoever uses
/// them holds meshMutex(), as the worker does during each step.
class ReadAhead {
public:
    using Steps = std::vector<std::function<void()>>;

    ReadAhead() = default;
    ~ReadAhead(); ///< waits for the running step, and drops the others
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    /// Runs the steps in order on the worker, in place of queued steps of the same owner. When a
    /// step throws, the exception is ignored and the owner's remaining steps are dropped: whoever
    /// needs the result later runs into the failure again, and reports it.
    void start(const void* owner, Steps steps);
    /// Waits until no step is running or queued.
    void wait();

    std::mutex& meshMutex() { return m_meshes; }

private:
    struct Work {
        const void* owner;
        Steps steps;
        std::size_t next = 0;
    };

    void work();
    /// Waits for the next step; empty when the worker is to end.
    std::function<void()> nextStep();
    void giveUp(const void* owner);

    std::mutex m_meshes;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::list<Work> m_waiting;
    const void* m_owner = nullptr; ///< of the running step
    bool m_isRunning = false;
    bool m_mustEnd = false;
    std::thread m_thread; ///< started on first use
};

} // namespace corvane::scene
