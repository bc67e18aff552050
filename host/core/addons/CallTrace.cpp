#include "host/core/addons/CallTrace.h"

namespace corvane::host {

std::string toString(const TraceRecord& record) {
    std::string line = record.call;
    if (!record.result.empty()) {
        line += " = " + record.result;
    }
    return line + " [" + std::to_string(record.depth) + "]";
}

void CallTrace::record(const TraceRecord& record) const {
    if (m_sinks.onCall) {
        m_sinks.onCall(record);
    }
}

void CallTrace::misuse(const std::string& what) const {
    if (m_sinks.onMisuse) {
        m_sinks.onMisuse(what);
    }
}

void CallTrace::exception(const std::string& what) const {
    if (m_sinks.onException) {
        m_sinks.onException(what);
    }
}

bool CallTrace::mayProceed(const char* operation, bool hasResult) const {
    return !m_sinks.onEnter || m_sinks.onEnter(operation, hasResult);
}

} // namespace corvane::host
