// A percent-done display that remembers what it showed, and a user who stops on cue.
#pragma once

#include "host/core/ports/Ports.h"

#include <cstddef>
#include <string>
#include <vector>

namespace corvane::memory {

class ScriptedStatus : public host::StatusDisplay {
public:
    void start(const std::string& text, bool showStop, bool showProgress) override;
    void setText(const std::string& text) override;
    void setPercent(int percent) override;
    void finish() override;
    bool isStopRequested() override;

    /// The user stops at the n-th time from now that the host asks (1 = the next one).
    void stopAtCheck(std::size_t n);
    /// Whether the stop that stopAtCheck() chose has come.
    bool hasStoppedAt() const { return m_hasStoppedAt; }
    /// How often the host asked again in the display in which the user had stopped last.
    std::size_t checksAfterStop() const { return m_checksAfterStop; }
    /// The next checks know nothing of a stop that an earlier one told.
    void forgetStop() { m_stopped = false; }

    /// "start "Animating" stop bar", "text "Exporting"", "percent 50", "finish", in order; the
    /// words stop and bar are there when the button and the bar are.
    const std::vector<std::string>& events() const { return m_events; }
    const std::vector<std::string>& texts() const { return m_texts; } ///< of starts and changes
    const std::vector<int>& percents() const { return m_percents; }
    /// How often the host asked for a wish to stop.
    std::size_t checks() const { return m_checks; }
    bool isUp() const { return m_isUp; }
    void clear();

private:
    std::vector<std::string> m_events;
    std::vector<std::string> m_texts;
    std::vector<int> m_percents;
    std::size_t m_checks = 0;
    std::size_t m_checksAfterStop = 0;
    std::size_t m_stopAt = 0; ///< 0: never
    bool m_hasStoppedAt = false;
    bool m_stopped = false;
    bool m_isUp = false;
};

} // namespace corvane::memory
