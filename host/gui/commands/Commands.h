// Carries out what the user does, and tells what went wrong.
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
    /// False after a failure, which the user was told.
    bool perform(const std::string& command, const std::vector<std::string>& words) const;
    bool setStyle(const std::string& path, const std::string& value) const;
    /// Anything that may throw, behind a message box.
    bool attempt(const std::function<void()>& work) const;

    /// Whether something runs that the user can do nothing to but stop it.
    bool isBusy() const;

private:
    host::Host& m_host;
};

} // namespace corvane::gui
