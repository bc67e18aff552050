// Calls add-ons, and cleans up behind them.
#include "host/core/session/AddOnCallGuard.h"

#include "host/core/addons/CallTrace.h"
#include "host/core/base/SecondTry.h"
#include "host/core/controls/Controls.h"
#include "host/core/picture/Drawing.h"

#include <exception>
#include <new>
#include <utility>

namespace corvane::host {

namespace {

/// So short that strings hold it without memory of their own.
constexpr const char* noMemory = "Out of memory.";

std::string textOf(const std::exception& error) {
    const std::string text = error.what();
    return text.empty() ? "The add-on failed without telling why." : text;
}

std::string fromTo(int now, int before) {
    return std::to_string(before) + " before, " + std::to_string(now) + " after";
}

const std::string* innermostCall = nullptr;

/// Add-ons call the host, which may call add-ons again.
class Underway {
public:
    explicit Underway(const std::string& what) : m_outer(std::exchange(innermostCall, &what)) {}
    ~Underway() { innermostCall = m_outer; }
    Underway(const Underway&) = delete;
    Underway& operator=(const Underway&) = delete;

private:
    const std::string* m_outer;
};

} // namespace

std::string addOnCallUnderway() {
    return innermostCall == nullptr ? std::string() : *innermostCall;
}

std::string AddOnCallGuard::call(const std::string& what, const std::function<void()>& work) {
    const Underway underway(what);
    try {
        return callGuarded(what, work);
    } catch (const std::bad_alloc&) {
        return noMemory;
    }
}

std::string AddOnCallGuard::callGuarded(const std::string& what,
                                        const std::function<void()>& work) {
    State before = withSecondTry([this] { return state(); });
    try {
        work();
    } catch (...) {
        putBackAfterThrow(before); // first, as telling needs memory
        return tellThrown(what);
    }
    putBackLeftovers(before, what);
    return {};
}

std::string AddOnCallGuard::tellThrown(const std::string& what) const {
    std::string error;
    try {
        throw;
    } catch (const std::bad_alloc&) {
        error = noMemory;
    } catch (const std::exception& thrown) {
        error = textOf(thrown);
    } catch (...) {
        error = "The add-on failed for an unknown reason.";
    }
    m_trace.exception(what + ": " + error);
    return error;
}

AddOnCallGuard::State AddOnCallGuard::state() const {
    return {m_locks.snapshot(), m_locks.depth(), m_drawing.suspensions(),
            m_controls.modalLaunches(), m_controls.modalDrops()};
}

bool AddOnCallGuard::tookLockForDialog(const State& before) const {
    const int taken = m_locks.depth() - before.depth;
    return taken > 0 && taken <= m_controls.modalLaunches() - before.modalLaunches;
}

bool AddOnCallGuard::gaveBackLockOfDialog(const State& before) const {
    const int givenBack = before.depth - m_locks.depth();
    return givenBack > 0 && givenBack <= m_controls.modalDrops() - before.modalDrops;
}

void AddOnCallGuard::putBackAfterThrow(State& before) {
    if (!gaveBackLockOfDialog(before)) { // nobody is left to give it back a second time
        m_locks.restore(std::move(before.locks));
    }
    m_drawing.restoreSuspensions(before.suspensions);
}

void AddOnCallGuard::putBackLeftovers(State& before, const std::string& what) {
    const int depth = m_locks.depth();
    const int suspensions = m_drawing.suspensions();
    const bool hasLeftLocks = m_locks.snapshot() != before.locks && !tookLockForDialog(before) &&
                              !gaveBackLockOfDialog(before);
    if (hasLeftLocks) {
        m_locks.restore(std::move(before.locks));
        m_drawing.schedule(); // what the locks held back
    }
    if (suspensions != before.suspensions) {
        m_drawing.restoreSuspensions(before.suspensions);
    }
    // Last, as telling needs memory.
    if (hasLeftLocks) {
        m_trace.misuse(what + ": locks are not balanced (" + fromTo(depth, before.depth) + ")");
    }
    if (suspensions != before.suspensions) {
        m_trace.misuse(what + ": suspended drawing is not balanced (" +
                       fromTo(suspensions, before.suspensions) + ")");
    }
}

} // namespace corvane::host
