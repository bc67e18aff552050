// Collects VTK's errors and warnings.
#pragma once

#include <string>
#include <vector>

namespace corvane::scene {

/// While an instance exists, it collects what VTK reports on the same thread; with several, the
/// innermost one does. Without any, messages are dropped: once an instance has been created, VTK
/// never writes to the terminal.
class VtkMessages {
public:
    VtkMessages();
    ~VtkMessages();
    VtkMessages(const VtkMessages&) = delete;
    VtkMessages& operator=(const VtkMessages&) = delete;

    bool hasErrors() const { return !m_errors.empty(); }
    bool hasWarnings() const { return !m_warnings.empty(); }
    /// The first error, else the first warning, without VTK's decoration (source file, line, class,
    /// address), on one line and without a full stop. A general reason when none is informative.
    std::string reason() const;

    void addError(const char* text) { m_errors.emplace_back(text); }
    void addWarning(const char* text) { m_warnings.emplace_back(text); }

private:
    std::vector<std::string> m_errors;
    std::vector<std::string> m_warnings;
    VtkMessages* m_outer;
};

} // namespace corvane::scene
