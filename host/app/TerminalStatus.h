// Progress on a terminal, or as sparse lines in a log.
#pragma once

#include "host/core/ports/Ports.h"

#include <chrono>
#include <functional>
#include <ostream>
#include <string>

namespace corvane::app {

/// On a terminal one line is written over and over, with rate and time left; elsewhere a line goes
/// out at each tenth.
class TerminalStatus : public host::StatusDisplay {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    TerminalStatus(std::ostream& out, bool isTerminal, std::function<bool()> isStopRequested,
                   Clock clock = std::chrono::steady_clock::now);

    void start(const std::string& text, bool showStop, bool showProgress) override;
    void setText(const std::string& text) override;
    void setPercent(int percent) override;
    void finish() override;
    bool isStopRequested() override;

private:
    void writeTerminalLine(int percent);
    void writeLogLine(int percent);
    double secondsSinceStart() const;

    std::ostream& m_out;
    bool m_isTerminal;
    std::function<bool()> m_isStopRequested;
    Clock m_clock;
    std::string m_text;
    std::chrono::steady_clock::time_point m_start;
    std::chrono::steady_clock::time_point m_lastWrite;
    unsigned long m_steps = 0;
    int m_lastTenth = 0;
    bool m_hasLine = false;
};

} // namespace corvane::app
