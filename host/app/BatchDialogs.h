// Messages of a run without windows: they go to standard error, questions are answered "no".
#pragma once

#include "host/core/Ports.h"

namespace corvane::app {

class BatchDialogs : public host::Dialogs {
public:
    void showError(const std::string& message) override;
    void showNotice(const std::string& message) override;
    bool askYesNo(const std::string& question) override;
    std::optional<std::string> askFileName(bool forWriting, const std::string& fileType,
                                           const std::string& defaultName,
                                           const std::string& filter) override;
    bool showHelp(const std::string& page) override;
};

} // namespace corvane::app
