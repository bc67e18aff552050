// Carries out macros: a scene, an export set-up, a flight, line by line.
#pragma once

#include "host/core/commands/UncommandedChanges.h"
#include "host/core/macro/MacroFile.h"
#include "host/core/macro/MacroText.h"
#include "host/core/macro/MacroVariables.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace corvane::host {

class MacroRecorder;
class Session;

class MacroPlayer {
public:
    /// Both must outlive the player.
    MacroPlayer(Session& session, MacroRecorder& recorder);
    ~MacroPlayer();
    MacroPlayer(const MacroPlayer&) = delete;
    MacroPlayer& operator=(const MacroPlayer&) = delete;

    bool isPlaying() const { return m_depth > 0; }
    MacroVariables& variables() { return m_variables; }
    UncommandedChanges& uncommanded() { return m_uncommanded; }

    /// The size of pictures is the user's choice: from now on macros do not change it.
    void keepPictureSize() { m_keepsPictureSize = true; }
    bool keepsPictureSize() const { return m_keepsPictureSize; }

    /// Opens the files of macros; throws HostError.
    using Opener = std::function<std::unique_ptr<std::istream>(const std::string& fileName)>;
    /// Where macros come from, in place of the disk.
    void openWith(Opener opener) { m_open = std::move(opener); }
    /// Asked before each line; a macro that is to stop fails there. Never, before this is called.
    void stopWhen(std::function<bool()> isStopRequested) {
        m_isStopRequested = std::move(isStopRequested);
    }

    /// Throws MacroError at the first line that fails; the lines before it have taken effect.
    void playFile(const std::string& fileName);
    /// name and folder stand for the file in messages and for relative file names.
    void play(std::istream& macro, const std::string& name, const std::string& folder);

    /// One command, as if it stood in a macro of that folder, but without variables. Throws
    /// HostError for words that make no sense and for what cannot be done. What was done is
    /// recorded while a macro is being recorded.
    void run(const std::string& name, const std::vector<std::string>& words,
             const std::string& folder = ".");

private:
    void runLine(const MacroLine& line, const std::string& name, const std::string& folder);

    Session& m_session;
    MacroRecorder& m_recorder;
    UncommandedChanges m_uncommanded;
    MacroVariables m_variables;
    Opener m_open = openMacro;
    std::function<bool()> m_isStopRequested = [] { return false; };
    bool m_keepsPictureSize = false;
    std::string m_folder; ///< of the macro that plays
    int m_depth = 0;
};

} // namespace corvane::host
