// Messages of a run without windows: they go to standard error, questions are answered "no".
#pragma once

#include "host/core/ports/Ports.h"

namespace corvane::app {

class BatchPrompts : public host::UserPrompts {
public:
    /// Quiet: notices are left out. Questions are not, since an answer was given to them.
    explicit BatchPrompts(bool isQuiet = false) : m_isQuiet(isQuiet) {}

    void showError(const std::string& message) override;
    void showNotice(const std::string& message) override;
    bool askYesNo(const std::string& question) override;
    std::optional<std::string> askFileName(bool forWriting, const std::string& fileType,
                                           const std::string& defaultName,
                                           const std::string& filter) override;
    bool showHelp(const std::string& page) override;

private:
    bool m_isQuiet;
};

} // namespace corvane::app
