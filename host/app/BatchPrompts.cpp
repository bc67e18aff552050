// Messages of a run without windows: they go to standard error, questions are answered "no".
#include "host/app/BatchPrompts.h"

#include "host/app/Messages.h"

namespace corvane::app {

void BatchPrompts::showError(const std::string& message) {
    say(message);
}

void BatchPrompts::showNotice(const std::string& message) {
    if (!m_isQuiet) {
        say(message);
    }
}

bool BatchPrompts::askYesNo(const std::string& question) {
    say(question + " (no)");
    return false;
}

std::optional<std::string> BatchPrompts::askFileName(bool, const std::string&, const std::string&,
                                                     const std::string&) {
    return std::nullopt;
}

bool BatchPrompts::showHelp(const std::string&) {
    return false;
}

} // namespace corvane::app
