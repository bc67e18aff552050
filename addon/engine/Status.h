// A percent-done indicator on the host's status line.
#pragma once

#include <string>

namespace corvane::corutiltools {

// Shows the host's percent-done display for its lifetime, and learns through it that the user asked
// to stop. The host allows one display at a time.
class Status {
public:
    // Messages without the hint how to cancel; any other mode appends it.
    static constexpr int messagesUnchanged = 1;

    // Starts the display with the message.
    //   total        steps that make 100 percent; with 0 or less the display shows neither progress
    //   nor a
    //                Stop button, and nothing is reported
    //   cancelHint   follows the message directly, so it begins with its own blank
    Status(double total, const std::string& message, int messageMode = 0,
           const std::string& cancelHint = " Press [Esc] or click [Stop] to cancel.");
    // Ends the display.
    ~Status();

    Status(const Status&) = delete;
    Status& operator=(const Status&) = delete;

    void setMessage(const std::string& message) const;

    // One step further: counts it and reports.
    Status& operator++();

    // Reports the steps done so far, never more than 100 percent.
    void update();

    std::string buildStatusMessage(const std::string& message) const;

    // What the host said at the last report.
    bool isCanceled() const { return m_canceled; }

private:
    double m_total;
    double m_count = 0.0;
    bool m_canceled = false;
    int m_messageMode;
    std::string m_cancelHint;
};

} // namespace corvane::corutiltools
