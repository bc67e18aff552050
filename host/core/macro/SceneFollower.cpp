// What changes without a command, as lines of the macro that is being recorded.
#include "host/core/macro/SceneFollower.h"

#include "host/core/Application.h"
#include "host/core/macro/MacroText.h"
#include "host/core/macro/MacroWords.h"
#include "host/core/macro/SceneMacro.h"

namespace corvane::host {

SceneFollower::SceneFollower(Application& application) : m_application(application) {
    MacroRecorder& recorder = application.recorder();
    recorder.onStart = [this] { remember(); };
    recorder.onCatchUp = [this] { catchUp(); };
    recorder.onAddOnCommand = [this] {
        m_hasAddOnRecorded = true;
        remember();
    };
}

void SceneFollower::commandBegins() {
    catchUp();
    m_hasAddOnRecorded = false;
}

void SceneFollower::commandEnded(bool isRecorded) {
    if (isRecorded || m_hasAddOnRecorded) {
        remember();
    }
}

void SceneFollower::catchUp() {
    if (!m_application.recorder().isRecording() || m_application.isAnimating()) {
        return;
    }
    catchUpWorkArea();
    const Frame* const frame = m_application.page().active();
    const auto seen = frame != nullptr ? m_frames.find(frame->id()) : m_frames.end();
    if (seen != m_frames.end()) {
        catchUpFrame(*frame, seen->second);
    }
    remember();
}

void SceneFollower::remember() {
    if (!m_application.recorder().isRecording()) {
        return;
    }
    const Page& page = m_application.page();
    m_workArea = page.workArea;
    m_frames.clear();
    for (const auto& frame : page.frames()) {
        m_frames[frame->id()] = {frame->view, frame->solutionTime};
    }
}

void SceneFollower::catchUpWorkArea() {
    const WorkArea& area = m_application.page().workArea;
    if (area != m_workArea) {
        m_application.recorder().recordState(macroLine("WORKAREA", workAreaWords(area)));
    }
}

void SceneFollower::catchUpFrame(const Frame& frame, const Seen& seen) {
    MacroRecorder& recorder = m_application.recorder();
    if (frame.view != seen.view && frame.plotType == PlotType_Cartesian3D) {
        recorder.recordState(macroLine("VIEW", viewWords(frame.view)));
    }
    if (frame.solutionTime != seen.solutionTime) {
        recorder.recordState(macroLine("SOLUTIONTIME", {"=", exactText(frame.solutionTime)}));
    }
}

} // namespace corvane::host
