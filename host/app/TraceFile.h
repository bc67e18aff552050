// Writes what an add-on calls of its host into a file, a line a call.
#pragma once

#include <fstream>
#include <mutex>
#include <string>

namespace corvane::host {
class CallTrace;
}

namespace corvane::app {

class TraceFile {
public:
    /// Throws HostError when the file cannot be written.
    explicit TraceFile(const std::string& fileName);

    /// The file must outlive what the trace records.
    void attachTo(host::CallTrace& trace);

private:
    void writeLine(const std::string& line);

    std::mutex m_mutex; ///< add-ons may break the rules on any thread
    std::ofstream m_file;
};

} // namespace corvane::app
