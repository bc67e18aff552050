// The whole host: a session, and the macro language that drives it.
#pragma once

#include "host/core/commands/MacroPlayer.h"
#include "host/core/macro/MacroRecorder.h"
#include "host/core/session/Session.h"

#include <string>
#include <vector>

namespace corvane::host {

/// Everything here belongs to the one user-interface thread, the one that made it, but for what is
/// said of any thread.
class Host {
public:
    explicit Host(Ports ports);
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// The one that the C operations work on: the most recently created one, or null. Add-ons may
    /// still call when the process ends.
    static Host* current();
    /// Whether this is the thread of the current host; true without one. May be asked on any
    /// thread.
    static bool isHomeThread();
    /// Tells the trace of the current host what an add-on did wrong. May be called on any thread.
    static void tellMisuse(const std::string& what);

    Session& session() { return m_session; }
    MacroRecorder& recorder() { return m_recorder; }
    MacroPlayer& macros() { return m_macros; }

    /// What a user does in a window, as one command of the macro language: it is carried out, and
    /// recorded while a macro is being recorded. Throws like MacroPlayer::run; what fails is not
    /// recorded.
    void perform(const std::string& command, const std::vector<std::string>& words);

private:
    void becomeCurrent();

    Session m_session;
    MacroRecorder m_recorder;
    MacroPlayer m_macros;
};

} // namespace corvane::host
