// Messages of a run without windows: they go to standard error, questions are answered "no".
#include "host/app/BatchDialogs.h"

#include "host/app/Messages.h"

namespace corvane::app {

void BatchDialogs::showError(const std::string& message) {
    say(message);
}

void BatchDialogs::showNotice(const std::string& message) {
    if (!m_isQuiet) {
        say(message);
    }
}

bool BatchDialogs::askYesNo(const std::string& question) {
    say(question + " (no)");
    return false;
}

std::optional<std::string> BatchDialogs::askFileName(bool, const std::string&, const std::string&,
                                                     const std::string&) {
    return std::nullopt;
}

bool BatchDialogs::showHelp(const std::string&) {
    return false;
}

} // namespace corvane::app
