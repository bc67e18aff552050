#include "host/app/TraceFile.h"

#include "host/core/addons/CallTrace.h"
#include "host/core/base/HostError.h"

namespace corvane::app {

namespace {

bool isStandardStream(const std::string& fileName) {
    return fileName == "/dev/stdout" || fileName == "/dev/stderr";
}

} // namespace

TraceFile::TraceFile(const std::string& fileName, const host::PartFile::Tell& tell)
    : m_name(fileName) {
    if (!isStandardStream(fileName)) {
        m_part.emplace(fileName, tell);
    }
    // Behind what a standard stream that is a file holds already.
    m_file.open(m_part ? m_part->path() : fileName, std::ios::app);
    expectSound();
}

void TraceFile::expectSound() const {
    if (!m_file) {
        throw host::HostError("Cannot write the trace " + m_name +
                              ". Is the disk full, or the file not yours to write to?");
    }
}

void TraceFile::attachTo(host::CallTrace& trace) {
    trace.connect(
        {.onCall = [this](const host::TraceRecord& record) { writeLine(toString(record)); },
         .onMisuse = [this](const std::string& what) { writeLine("misuse: " + what); },
         .onException = [this](const std::string& what) { writeLine("exception: " + what); }});
}

void TraceFile::finish() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    expectSound();
    if (m_part) {
        m_part->commit();
    }
}

// Flushed at once, since the trace is looked at when an add-on has brought the process down.
void TraceFile::writeLine(const std::string& line) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_file << line << std::endl;
}

} // namespace corvane::app
