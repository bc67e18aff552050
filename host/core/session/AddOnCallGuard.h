// The wall round every call into an add-on.
#pragma once

#include "host/core/addons/Locks.h"

#include <functional>
#include <string>

namespace corvane::host {

class CallTrace;
class Controls;
class Drawing;

/// Which call into an add-on the process is in, as it was called for the trace; empty when in none.
/// Tells at the end of the process whether an add-on ended it.
std::string addOnCallUnderway();

/// Whatever an add-on throws ends here, and what it leaves behind is put back: locks and suspended
/// drawing are afterwards what they were before, so that one careless call does not leave the
/// picture frozen for good. The trace is told of all that. One lock may stay behind for each modal
/// dialog that came up in the call, and be given back for each that went: a dialog may hold one for
/// its whole life.
class AddOnCallGuard {
public:
    AddOnCallGuard(Locks& locks, Drawing& drawing, const Controls& controls, const CallTrace& trace)
        : m_locks(locks), m_drawing(drawing), m_controls(controls), m_trace(trace) {}

    /// Answers the text of what was thrown, never empty; empty when nothing was. Without any memory
    /// the add-on may not be called at all, which the text tells, too.
    std::string call(const std::string& what, const std::function<void()>& work);

private:
    struct State {
        Locks::Snapshot locks;
        int depth;
        int suspensions;
        int modalLaunches;
        int modalDrops;
    };

    State state() const;
    bool tookLockForDialog(const State& before) const;
    bool gaveBackLockOfDialog(const State& before) const;
    std::string callGuarded(const std::string& what, const std::function<void()>& work);
    /// In a catch block.
    std::string tellThrown(const std::string& what) const;
    /// Both need no memory to put back what was before, and take it from there.
    void putBackAfterThrow(State& before);
    void putBackLeftovers(State& before, const std::string& what);

    Locks& m_locks;
    Drawing& m_drawing;
    const Controls& m_controls;
    const CallTrace& m_trace;
};

} // namespace corvane::host
