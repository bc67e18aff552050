#include "host/validate/Judge.h"

namespace corvane::validate {

namespace {

/// Loops within loops ask once each on their way out.
constexpr std::size_t mostChecksAfterStop = 8;

/// An add-on may keep something of the host for later, but not more of it each time.
constexpr std::size_t leastTimes = 3;

} // namespace

void Judge::broken(Rule rule, const Action& action, const std::string& what) {
    if (m_told.emplace(rule, action.what, what).second) {
        m_journal.broken({rule, action, what});
    }
}

void Judge::startAction() {
    m_heldBefore = memory::MemoryHost::thingsHeld();
    m_wasRecording = m_host.session().exporter().isRecording();
}

void Judge::endAction(const Action& action) {
    judgeComplaints(action);
    judgeProgress(action);
    judgeMovie(action);
    judgeMemory(action);
}

void Judge::judgeComplaints(const Action& action) {
    const memory::Complaints complaints = m_host.takeComplaints();
    for (const std::string& misuse : complaints.misuse) {
        const Rule rule = ruleBrokenBy(misuse);
        // To hand on the failure of another call does no harm: the host refuses it.
        if (rule != Rule::Arguments || action.condition.empty()) {
            broken(rule, action, misuse);
        }
    }
    for (const std::string& exception : complaints.exceptions) {
        broken(Rule::Exceptions, action, exception);
    }
}

void Judge::judgeProgress(const Action& action) {
    if (m_host.session().status().isActive()) {
        broken(Rule::Progress, action, "the percent-done display is still open");
    }
    while (m_host.session().status().isActive()) {
        m_host.session().status().finish();
    }
    const std::size_t checks = m_host.status().checksAfterStop();
    if (checks > mostChecksAfterStop) {
        broken(Rule::Stopping, action,
               "the work goes on after CorUtilStatusCheckPercentDone has answered FALSE");
    }
}

/// A movie may go on from one callback to the next, as in work of the idle queue.
void Judge::judgeMovie(const Action& action) {
    if (!m_wasRecording && m_host.session().exporter().isRecording()) {
        m_startOfMovie = action;
    }
}

void Judge::rest() {
    host::Session& session = m_host.session();
    if (session.exporter().isRecording()) {
        broken(Rule::Movies, m_startOfMovie, "the movie that was started is still being recorded");
        session.exporter().cancel();
    }
    if (session.locks().depth() != 0) {
        broken(Rule::Locks, {"closing the modal dialogs", ""},
               "locks are held although no dialog is up");
        session.locks().restore({});
    }
}

void Judge::judgeMemory(const Action& action) {
    const bool grew = memory::MemoryHost::thingsHeld() > m_heldBefore;
    Growth& growth = m_growth[action.what];
    if (action.condition.empty()) {
        ++growth.times;
        growth.grew += grew ? 1 : 0;
    } else if (grew && growth.grew == 0) {
        m_grewOnFailure.push_back(action);
    }
}

void Judge::endAll() {
    const std::size_t held = memory::MemoryHost::thingsHeld();
    if (held == 0) {
        return;
    }
    for (const auto& [what, growth] : m_growth) {
        if (growth.times >= leastTimes && growth.grew == growth.times) {
            broken(Rule::Memory, {what, ""}, "something of the host is not given back each time");
        }
    }
    for (const Action& action : m_grewOnFailure) {
        broken(Rule::Memory, action, "something of the host is not given back");
    }
}

} // namespace corvane::validate
