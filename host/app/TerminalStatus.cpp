// Progress on a terminal, or as sparse lines in a log.
#include "host/app/TerminalStatus.h"

#include <cmath>
#include <cstdio>

namespace corvane::app {
namespace {

constexpr std::chrono::milliseconds writeInterval{100};
constexpr const char* eraseLine = "\r\x1b[K";

// Texts name the keys and buttons of a window, which a terminal does not have.
std::string withoutWindowHint(const std::string& text) {
    return text.substr(0, text.find(" Press ["));
}

std::string formatted(const char* format, double a, double b) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, format, a, b);
    return buffer;
}

} // namespace

TerminalStatus::TerminalStatus(std::ostream& out, bool isTerminal,
                               std::function<bool()> isStopRequested, Clock clock)
    : m_out(out),
      m_isTerminal(isTerminal),
      m_isStopRequested(std::move(isStopRequested)),
      m_clock(std::move(clock)) {}

void TerminalStatus::start(const std::string& text, bool, bool) {
    m_text = withoutWindowHint(text);
    m_start = m_clock();
    m_lastWrite = m_start;
    m_steps = 0;
    m_lastTenth = 0;
    m_hasLine = false;
}

void TerminalStatus::setText(const std::string& text) {
    m_text = withoutWindowHint(text);
}

void TerminalStatus::setPercent(int percent) {
    ++m_steps;
    if (m_isTerminal) {
        writeTerminalLine(percent);
    } else {
        writeLogLine(percent);
    }
}

void TerminalStatus::finish() {
    if (m_hasLine) {
        m_out << eraseLine << std::flush;
        m_hasLine = false;
    }
}

bool TerminalStatus::isStopRequested() {
    return m_isStopRequested();
}

double TerminalStatus::secondsSinceStart() const {
    return std::chrono::duration<double>(m_clock() - m_start).count();
}

void TerminalStatus::writeTerminalLine(int percent) {
    const auto now = m_clock();
    if (now - m_lastWrite < writeInterval) {
        return;
    }
    m_lastWrite = now;
    const double seconds = secondsSinceStart();
    std::string line = eraseLine + m_text + " " + std::to_string(percent) + " %";
    if (percent > 0 && seconds > 0.0) {
        line += formatted(", %.1f/s, %.0f s left (Ctrl-C stops)",
                          static_cast<double>(m_steps) / seconds,
                          std::ceil(seconds * (100 - percent) / percent));
    }
    m_out << line << std::flush;
    m_hasLine = true;
}

void TerminalStatus::writeLogLine(int percent) {
    const int tenth = percent / 10;
    if (tenth > m_lastTenth) {
        m_lastTenth = tenth;
        m_out << m_text + " " + std::to_string(tenth * 10) + " %\n" << std::flush;
    }
}

} // namespace corvane::app
