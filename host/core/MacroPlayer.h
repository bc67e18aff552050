// Carries out macros: a scene, an export set-up, a flight, line by line.
#pragma once

#include "host/core/MacroText.h"

#include <string>
#include <vector>

namespace corvane::host {

class Application;

/// One command of the macro language.
struct MacroCommand {
    std::string name;      ///< READDATA
    std::string arguments; ///< "FILE" ["FILE" …]
    std::string purpose;   ///< one sentence
    /// Throws std::invalid_argument or HostError with the cause. File names in the words are
    /// relative to the folder of the macro.
    void (*run)(Application& application, const std::vector<std::string>& words,
                const std::string& folder);
};

/// The whole language, in the order in which it is explained.
const std::vector<MacroCommand>& macroCommands();

class MacroPlayer {
public:
    explicit MacroPlayer(Application& application) : m_application(application) {}

    bool isPlaying() const { return m_depth > 0; }

    /// Throws MacroError at the first line that fails; the lines before it have taken effect.
    void playFile(const std::string& fileName);
    /// name and folder stand for the file in messages and for relative file names.
    void play(std::istream& macro, const std::string& name, const std::string& folder);

    /// One command, as if it stood in a macro of that folder. Throws std::invalid_argument for
    /// words that make no sense, HostError for what cannot be done.
    void run(const std::string& name, const std::vector<std::string>& words,
             const std::string& folder = ".");

private:
    void runLine(const MacroLine& line, const std::string& name, const std::string& folder);

    Application& m_application;
    int m_depth = 0;
};

} // namespace corvane::host
