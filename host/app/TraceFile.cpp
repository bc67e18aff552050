#include "host/app/TraceFile.h"

#include "host/core/addons/CallTrace.h"
#include "host/core/base/HostError.h"

namespace corvane::app {

TraceFile::TraceFile(const std::string& fileName, const host::PartFile::Tell& tell)
    : m_part(fileName, tell), m_file(m_part.path()) {}

void TraceFile::attachTo(host::CallTrace& trace) {
    trace.connect(
        {.onCall = [this](const host::TraceRecord& record) { writeLine(toString(record)); },
         .onMisuse = [this](const std::string& what) { writeLine("misuse: " + what); },
         .onException = [this](const std::string& what) { writeLine("exception: " + what); }});
}

void TraceFile::finish() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_file) {
        throw host::HostError("Cannot write the trace " + m_part.destination() +
                              ". Is the disk full?");
    }
    m_part.commit();
}

// Flushed at once, since the trace is looked at when an add-on has brought the process down.
void TraceFile::writeLine(const std::string& line) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_file << line << std::endl;
}

} // namespace corvane::app
