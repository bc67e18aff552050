// A percent-done display that remembers what it showed, and a user who stops on cue.
#include "host/memory/ScriptedStatus.h"

namespace corvane::memory {

void ScriptedStatus::start(const std::string& text, bool showStop, bool showProgress) {
    m_events.push_back("start \"" + text + '"' + (showStop ? " stop" : "") +
                       (showProgress ? " bar" : ""));
    m_texts.push_back(text);
    m_stopped = false;
    m_isUp = true;
}

void ScriptedStatus::setText(const std::string& text) {
    m_events.push_back("text \"" + text + '"');
    m_texts.push_back(text);
}

void ScriptedStatus::setPercent(int percent) {
    m_events.push_back("percent " + std::to_string(percent));
    m_percents.push_back(percent);
}

void ScriptedStatus::finish() {
    m_events.push_back("finish");
    m_isUp = false;
}

void ScriptedStatus::stopAtCheck(std::size_t n) {
    m_stopAt = n;
    m_hasStoppedAt = false;
    m_checksAfterStop = 0;
}

bool ScriptedStatus::isStopRequested() {
    ++m_checks;
    m_checksAfterStop += m_stopped ? 1 : 0;
    if (m_stopAt > 0 && --m_stopAt == 0) {
        m_stopped = true;
        m_hasStoppedAt = true;
    }
    return m_stopped;
}

void ScriptedStatus::clear() {
    m_events.clear();
    m_texts.clear();
    m_percents.clear();
    m_checks = 0;
}

} // namespace corvane::memory
