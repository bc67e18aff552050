// Collects what VTK would print.
#pragma once

#include <string>
#include <vector>

namespace corvane::scene {

/// While one lives, errors and warnings that VTK reports on its thread go here, to the innermost
/// one. Without any they are dropped: VTK never writes to the terminal once one has been made.
class VtkMessages {
public:
    VtkMessages();
    ~VtkMessages();
    VtkMessages(const VtkMessages&) = delete;
    VtkMessages& operator=(const VtkMessages&) = delete;

    bool hasErrors() const { return !m_errors.empty(); }
    bool hasWarnings() const { return !m_warnings.empty(); }
    /// The first error, else the first warning, without VTK's decoration (source file, line, class,
    /// address), on one line and without a full stop. Without any that says something, a general
    /// sentence.
    std::string reason() const;

    void addError(const char* text) { m_errors.emplace_back(text); }
    void addWarning(const char* text) { m_warnings.emplace_back(text); }

private:
    std::vector<std::string> m_errors;
    std::vector<std::string> m_warnings;
    VtkMessages* m_outer;
};

} // namespace corvane::scene
