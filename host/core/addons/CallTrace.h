// One record for each call an add-on makes of its host: the first thing to look at when an add-on
// misbehaves, and what tests compare orders of calls with.
#pragma once

#include <functional>
#include <string>
#include <utility>

namespace corvane::host {

struct TraceRecord {
    std::string call;   ///< with its arguments: CorUtilDrawGraphics(FALSE)
    std::string result; ///< empty for operations without one
    int depth = 0;      ///< locks held after the call
};

/// "CorUtilExportStart() = TRUE [1]": result when there is one, lock depth in brackets.
std::string toString(const TraceRecord& record);

/// Where a trace goes. Any of them may be empty.
struct TraceSinks {
    /// Records are made only where this is not empty.
    std::function<void(const TraceRecord&)> onCall = {};
    /// What an add-on did wrong and the host put right or ignored: the library, the operation, the
    /// rule. Called on whatever thread the add-on chose.
    std::function<void(const std::string&)> onMisuse = {};
    /// Which callback let an exception out, and its text. The host has caught it.
    std::function<void(const std::string&)> onException = {};
    /// Asked before each call, for tests of what an add-on does when its host fails. False: the
    /// call answers its failure and does nothing else. An exception of it leaves the operation,
    /// which no other one does. hasResult: the operation can answer a failure at all.
    std::function<bool(const char* operation, bool hasResult)> onEnter = {};
};

class CallTrace {
public:
    /// Replaces the sinks that were connected before.
    void connect(TraceSinks sinks) { m_sinks = std::move(sinks); }
    void disconnect() { m_sinks = {}; }

    bool isRecording() const { return static_cast<bool>(m_sinks.onCall); }
    void record(const TraceRecord& record) const;
    void misuse(const std::string& what) const;
    void exception(const std::string& what) const;
    /// Whether the call may do its work.
    bool mayProceed(const char* operation, bool hasResult) const;

private:
    TraceSinks m_sinks;
};

} // namespace corvane::host
