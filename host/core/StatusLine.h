// The percent-done display, and the user's wish to stop.
#pragma once

#include <functional>
#include <string>

namespace corvane::host {

class StatusDisplay;

class StatusLine {
public:
    explicit StatusLine(StatusDisplay& display) : m_display(display) {}

    /// Forgets an earlier wish to stop. Nested starts and a finish without start are tolerated:
    /// the display shows the outermost one.
    void start(const std::string& text, bool showStop, bool showProgress);
    void setText(const std::string& text);
    /// percent is clamped into 0..100. False once the user asked to stop, or something the flight
    /// depends on has failed; it stays false until the outermost finish.
    bool check(int percent);
    void finish();

    bool isActive() const { return m_depth > 0; }
    /// The user asked to stop since the last outermost start.
    bool wasStopped() const { return m_stopped; }

    /// Answers whether work should end although the user did not ask for it.
    std::function<bool()> hasFailed;

private:
    StatusDisplay& m_display;
    int m_depth = 0;
    bool m_stopped = false;
    bool m_latched = false;
};

} // namespace corvane::host
