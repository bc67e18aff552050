// Carries out what the user does, and tells what went wrong.
#include "host/gui/window/Commands.h"

#include "host/core/Application.h"

namespace corvane::gui {

bool Commands::perform(const std::string& command, const std::vector<std::string>& words) const {
    return attempt([&] { m_application.perform(command, words); });
}

bool Commands::setStyle(const std::string& path, const std::string& value) const {
    return perform("STYLE", {path, "=", value});
}

bool Commands::attempt(const std::function<void()>& work) const {
    std::string message;
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        message = error.what();
    }
    // What failed has been told with this message; idle time shall not tell it again.
    m_application.exporter().forgetFailure();
    m_application.dialogs().showError(message);
    return false;
}

bool Commands::isBusy() const {
    return m_application.isAnimating() || m_application.macros().isPlaying();
}

} // namespace corvane::gui
