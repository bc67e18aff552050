// The percent-done display, and the user's wish to stop.
#pragma once

#include <functional>
#include <string>
#include <utility>

namespace corvane::host {

class StatusDisplay;

class StatusLine {
public:
    /// hasFailed answers whether work should end although the user did not ask for it.
    explicit StatusLine(
        StatusDisplay& display, std::function<bool()> hasFailed = [] { return false; })
        : m_display(display), m_hasFailed(std::move(hasFailed)) {}

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

private:
    StatusDisplay& m_display;
    std::function<bool()> m_hasFailed;
    int m_depth = 0;
    bool m_stopped = false;
    bool m_latched = false;
};

} // namespace corvane::host
