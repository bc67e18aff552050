// Calls add-ons, and cleans up behind them.
#include "host/core/session/AddOnCallGuard.h"

#include "host/core/addons/CallTrace.h"
#include "host/core/controls/Controls.h"
#include "host/core/picture/Drawing.h"

#include <exception>
#include <utility>

namespace corvane::host {

namespace {

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
    const State before = state();
    std::string error;
    try {
        work();
        putBackLeftovers(before, what);
        return error;
    } catch (const std::exception& thrown) {
        error = textOf(thrown);
    } catch (...) {
        error = "The add-on failed for an unknown reason.";
    }
    m_trace.exception(what + ": " + error);
    putBackAfterThrow(before);
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

void AddOnCallGuard::putBackAfterThrow(const State& before) {
    if (!gaveBackLockOfDialog(before)) { // nobody is left to give it back a second time
        m_locks.restore(before.locks);
    }
    m_drawing.restoreSuspensions(before.suspensions);
}

void AddOnCallGuard::putBackLeftovers(const State& before, const std::string& what) {
    if (m_locks.snapshot() != before.locks && !tookLockForDialog(before) &&
        !gaveBackLockOfDialog(before)) {
        m_trace.misuse(what + ": locks are not balanced (" + fromTo(m_locks.depth(), before.depth) +
                       ")");
        m_locks.restore(before.locks);
        m_drawing.schedule(); // what the locks held back
    }
    if (m_drawing.suspensions() != before.suspensions) {
        m_trace.misuse(what + ": suspended drawing is not balanced (" +
                       fromTo(m_drawing.suspensions(), before.suspensions) + ")");
        m_drawing.restoreSuspensions(before.suspensions);
    }
}

} // namespace corvane::host
