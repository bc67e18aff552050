// Writes what an add-on calls of its host into a file, a line a call.
#pragma once

#include "host/core/files/PartFile.h"

#include <fstream>
#include <mutex>
#include <optional>
#include <string>

namespace corvane::host {
class CallTrace;
}

namespace corvane::app {

/// It stands under its name when finish() was called. What a run that crashes has left of it can be
/// read as far as it came. "/dev/stdout" and "/dev/stderr" show the lines as they come.
class TraceFile {
public:
    /// Throws HostError when the file cannot be written.
    TraceFile(const std::string& fileName, const host::PartFile::Tell& tell);

    /// The file must outlive what the trace records.
    void attachTo(host::CallTrace& trace);
    /// Gives the file its name; calls that come later are still added. Throws HostError.
    void finish();

private:
    void expectSound() const;
    void writeLine(const std::string& line);

    std::mutex m_mutex; ///< add-ons may break the rules on any thread
    std::string m_name;
    std::optional<host::PartFile> m_part; ///< none for a standard stream
    std::ofstream m_file;
};

} // namespace corvane::app
