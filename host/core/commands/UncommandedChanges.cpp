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
    catchUpWorkArea();
    const Frame* const frame = m_session.page().active();
    const auto seen = frame != nullptr ? m_frames.find(frame->id()) : m_frames.end();
    if (seen != m_frames.end()) {
        catchUpFrame(*frame, seen->second);
    }
    remember();
}

void UncommandedChanges::remember() {
    if (!m_recorder.isRecording()) {
        return;
    }
    const Page& page = m_session.page();
    m_workArea = page.workArea;
    m_frames.clear();
    for (const auto& frame : page.frames()) {
        m_frames[frame->id()] = {frame->view, frame->solutionTime};
    }
}

void UncommandedChanges::catchUpWorkArea() {
    const WorkArea& area = m_session.page().workArea;
    if (area != m_workArea) {
        m_recorder.recordState(macroLine("WORKAREA", workAreaWords(area)));
    }
}

void UncommandedChanges::catchUpFrame(const Frame& frame, const Seen& seen) {
    if (frame.view != seen.view && frame.plotType == PlotType_Cartesian3D) {
        m_recorder.recordState(macroLine("VIEW", viewWords(frame.view)));
    }
    if (frame.solutionTime != seen.solutionTime) {
        m_recorder.recordState(macroLine("SOLUTIONTIME", {"=", exactText(frame.solutionTime)}));
    }
}

} // namespace corvane::host
