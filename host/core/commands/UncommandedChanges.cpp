// What changes without a command, as lines of the macro that is being recorded.
#include "host/core/commands/UncommandedChanges.h"

#include "host/core/base/Text.h"
#include "host/core/commands/SceneMacro.h"
#include "host/core/macro/MacroText.h"
#include "host/core/session/Session.h"

namespace corvane::host {

UncommandedChanges::UncommandedChanges(Session& session, MacroRecorder& recorder)
    : m_session(session), m_recorder(recorder) {
    recorder.setListener(this);
}

UncommandedChanges::~UncommandedChanges() {
    m_recorder.setListener(nullptr);
}

void UncommandedChanges::addOnCommandRecorded() {
    m_hasAddOnRecorded = true;
    remember();
}

void UncommandedChanges::commandBegins() {
    catchUp();
    m_hasAddOnRecorded = false;
}

void UncommandedChanges::commandEnded(bool isRecorded) {
    if (isRecorded || m_hasAddOnRecorded) {
        remember();
    }
}

void UncommandedChanges::catchUp() {
    if (!m_recorder.isRecording() || m_session.isAnimating()) {
        return;
    }
    const PageState now = m_session.page().state();
    if (now.workArea != m_seen.workArea) {
        m_recorder.recordState(macroLine("WORKAREA", workAreaWords(now.workArea)));
    }
    const FrameState* const frame = findFrame(now, now.active);
    const FrameState* const seen = findFrame(m_seen, now.active);
    if (frame != nullptr && seen != nullptr) {
        catchUpFrame(*frame, *seen);
    }
    m_seen = now;
}

void UncommandedChanges::remember() {
    if (m_recorder.isRecording()) {
        m_seen = m_session.page().state();
    }
}

void UncommandedChanges::catchUpFrame(const FrameState& frame, const FrameState& seen) {
    if (frame.view != seen.view && frame.isSpatial()) {
        m_recorder.recordState(macroLine("VIEW", viewWords(frame.view)));
    }
    if (frame.solutionTime != seen.solutionTime) {
        m_recorder.recordState(macroLine("SOLUTIONTIME", {"=", exactText(frame.solutionTime)}));
    }
}

} // namespace corvane::host
