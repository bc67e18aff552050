// Carries out macros: a scene, an export set-up, a flight, line by line.
#pragma once

#include "host/core/macro/MacroFile.h"
#include "host/core/macro/MacroText.h"
#include "host/core/macro/MacroVariables.h"
#include "host/core/macro/SceneFollower.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace corvane::host {

class Application;

class MacroPlayer {
public:
    explicit MacroPlayer(Application& application)
        : m_application(application), m_follower(application) {}

    bool isPlaying() const { return m_depth > 0; }
    MacroVariables& variables() { return m_variables; }
    SceneFollower& follower() { return m_follower; }

    /// The size of pictures is the user's choice: from now on macros do not change it.
    void keepPictureSize() { m_keepsPictureSize = true; }
    bool keepsPictureSize() const { return m_keepsPictureSize; }

    /// Opens the files of macros; throws HostError.
    std::function<std::unique_ptr<std::istream>(const std::string& fileName)> open = openMacro;
    /// Asked before each line; a macro that is to stop fails there. Empty: nobody can stop it.
    std::function<bool()> isStopRequested;

    /// Throws MacroError at the first line that fails; the lines before it have taken effect.
    void playFile(const std::string& fileName);
    /// name and folder stand for the file in messages and for relative file names.
    void play(std::istream& macro, const std::string& name, const std::string& folder);

    /// One command, as if it stood in a macro of that folder, but without variables. Throws
    /// std::invalid_argument for words that make no sense, HostError for what cannot be done. What
    /// was done is recorded while a macro is being recorded.
    void run(const std::string& name, const std::vector<std::string>& words,
             const std::string& folder = ".");

private:
    void runLine(const MacroLine& line, const std::string& name, const std::string& folder);

    Application& m_application;
    SceneFollower m_follower;
    MacroVariables m_variables;
    bool m_keepsPictureSize = false;
    std::string m_folder; ///< of the macro that plays
    int m_depth = 0;
};

} // namespace corvane::host
