// A worker thread that prepares the next pictures while the current one is drawn.
#pragma once

#include <condition_variable>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace corvane::scene {

/// Holds the queue and the lock that keeps it. Meshes and the filters that read them may be used by
/// one thread at a time only: the worker uses them during each step, others do while it is paused.
class ReadAhead {
public:
    using Steps = std::vector<std::function<void()>>;

    ReadAhead() = default;
    ~ReadAhead(); ///< waits for the running step, and drops the others
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    /// Runs the steps in order on the worker, in place of queued steps of the same owner. When a
    /// step throws, the exception is ignored and the remaining ones are dropped: whoever needs the
    /// result later runs into the failure again, and reports it.
    void start(const void* owner, Steps steps);
    /// Drops what is queued for this owner, and waits for its running step: afterwards no step that
    /// was started for it runs or will run.
    void cancel(const void* owner);
    /// Waits until no step is running or queued. Not while it is paused.
    void wait();

    /// No step runs while such an object lives; one that runs is waited for. Not for steps.
    class Pause {
    public:
        explicit Pause(ReadAhead& ahead);
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        ReadAhead& m_ahead;
    };

private:
    struct Work {
        const void* owner;
        std::list<std::function<void()>> steps; ///< that have not begun
    };

    void work();
    void runStep(std::unique_lock<std::mutex>& lock); ///< lets go of the lock meanwhile
    void dropWaiting(const void* owner);              ///< with the lock held

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::list<std::shared_ptr<Work>> m_waiting; ///< each with a step at least
    std::shared_ptr<Work> m_running;            ///< of which a step runs
    int m_pauses = 0;
    bool m_mustEnd = false;
    std::thread m_thread; ///< started on first use
};

} // namespace corvane::scene
