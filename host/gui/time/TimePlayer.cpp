#include "host/gui/time/TimePlayer.h"

#include "host/core/Host.h"
#include "host/core/base/Text.h"
#include "host/gui/time/SolutionTimes.h"

#include <algorithm>

namespace corvane::gui {

namespace {

constexpr int stepMs = 80;

} // namespace

TimePlayer::TimePlayer(const Commands& commands) : m_commands(commands) {
    m_timer.setInterval(stepMs);
    connect(&m_timer, &QTimer::timeout, this, &TimePlayer::playOn);
}

void TimePlayer::setLooping(bool isLooping) {
    m_isLooping = isLooping;
    Q_EMIT changed();
}

void TimePlayer::togglePlay() {
    if (isPlaying()) {
        pause();
        return;
    }
    if (m_times.size() < 2 || m_commands.isBusy()) {
        return;
    }
    if (m_index + 1 == static_cast<int>(m_times.size())) {
        showStep(0);
    }
    m_timer.start();
    Q_EMIT changed();
}

void TimePlayer::pause() {
    m_timer.stop();
    Q_EMIT changed();
}

void TimePlayer::playOn() {
    if (m_commands.isBusy()) {
        pause();
        return;
    }
    if (m_commands.session().drawing().isMarked()) {
        return;
    }
    const bool isLast = m_index + 1 >= static_cast<int>(m_times.size());
    if (isLast && !m_isLooping) {
        pause();
        return;
    }
    showStep(isLast ? 0 : m_index + 1);
}

void TimePlayer::stepBy(int steps) {
    pause();
    showStep(m_index + steps);
}

void TimePlayer::showStep(int index) {
    if (m_times.empty() || m_commands.isBusy()) {
        return;
    }
    const int wanted = std::clamp(index, 0, static_cast<int>(m_times.size()) - 1);
    const double time = m_times[static_cast<std::size_t>(wanted)];
    if (!m_commands.perform("SOLUTIONTIME", {"=", host::exactText(time)})) {
        m_timer.stop();
    }
    refresh();
}

void TimePlayer::previewStep(int index) {
    if (index >= 0 && index < static_cast<int>(m_times.size()) && !m_commands.isBusy()) {
        m_commands.session().setSolutionTime(m_times[static_cast<std::size_t>(index)]);
        refresh();
    }
}

void TimePlayer::refresh() {
    const host::Frame* const frame = m_commands.session().page().active();
    const bool hasData = frame != nullptr && frame->data();
    m_times = hasData ? solutionTimes(*frame->data()) : std::vector<double>{};
    m_index = hasData ? indexAt(m_times, frame->solutionTime) : 0;
    if (m_times.size() < 2) {
        m_timer.stop();
    }
    Q_EMIT changed();
}

} // namespace corvane::gui
