#include "host/gui/commands/Commands.h"

#include "host/core/Host.h"
#include "host/core/base/HostError.h"

namespace corvane::gui {

host::Session& Commands::session() const {
    return m_host.session();
}

bool Commands::perform(const std::string& command, const std::vector<std::string>& words) const {
    return attempt([&] { m_host.perform(command, words); });
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
        message = host::messageOf(error);
    }
    // This message covers a failed export, too; idle time must not report it again.
    session().exporter().forgetFailure();
    session().prompts().showError(message);
    return false;
}

bool Commands::isBusy() const {
    return session().isAnimating() || m_host.macros().isPlaying();
}

} // namespace corvane::gui
