// Carries out the user's commands, and reports failures to the user.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace corvane::host {
class Host;
class Session;
} // namespace corvane::host

namespace corvane::gui {

class Commands {
public:
    explicit Commands(host::Host& host) : m_host(host) {}

    host::Host& host() const { return m_host; }
    host::Session& session() const; ///< of the host

    /// One command of the macro language: carried out, and recorded while a macro is recorded.
    /// False after a failure, which has been reported.
    bool perform(const std::string& command, const std::vector<std::string>& words) const;
    bool setStyle(const std::string& path, const std::string& value) const;
    /// Does work that may throw, and shows what it throws in a message box. False after that.
    bool attempt(const std::function<void()>& work) const;

    /// Whether an animation or a macro is running, which the user can only stop.
    bool isBusy() const;

private:
    host::Host& m_host;
};

} // namespace corvane::gui
