// Writes trace records as lines.
#include "host/core/addons/CallTrace.h"

namespace corvane::host {

std::string toString(const TraceRecord& record) {
    std::string line = record.call;
    if (!record.result.empty()) {
        line += " = " + record.result;
    }
    return line + " [" + std::to_string(record.depth) + "]";
}

} // namespace corvane::host
