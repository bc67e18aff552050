// Plays macros line by line.
#include "host/core/commands/MacroPlayer.h"

#include "host/core/base/HostError.h"
#include "host/core/commands/MacroCommands.h"
#include "host/core/macro/MacroRecorder.h"
#include "host/core/session/Session.h"

#include <filesystem>
#include <utility>

namespace corvane::host {

namespace {

/// Macros that include each other must end before the stack does.
constexpr int deepest = 16;

/// Counts plays that are under way, also when one ends by an exception.
class Counted {
public:
    explicit Counted(int& count) : m_count(count) { ++m_count; }
    ~Counted() { --m_count; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int& m_count;
};

/// Lets macros name files beside them, to add-ons too.
class FolderVariable {
public:
    FolderVariable(MacroVariables& variables, std::string& current, const std::string& folder)
        : m_variables(variables),
          m_current(current),
          m_outer(std::exchange(current, absolute(folder))) {
        publish();
    }
    ~FolderVariable() {
        m_current = m_outer;
        publish();
    }
    FolderVariable(const FolderVariable&) = delete;
    FolderVariable& operator=(const FolderVariable&) = delete;

private:
    /// So that what add-ons record of it can be played from anywhere.
    static std::string absolute(const std::string& folder) {
        std::error_code error;
        const std::filesystem::path here = std::filesystem::current_path(error);
        const auto path = (here / folder).lexically_normal();
        return (path.has_filename() ? path : path.parent_path()).string();
    }
    void publish() { m_variables.set("MACRO_FOLDER", m_current.empty() ? "." : m_current); }

    MacroVariables& m_variables;
    std::string& m_current;
    std::string m_outer;
};

} // namespace

MacroPlayer::MacroPlayer(Session& session, MacroRecorder& recorder)
    : m_session(session), m_recorder(recorder), m_uncommanded(session, recorder) {}

MacroPlayer::~MacroPlayer() = default;

void MacroPlayer::playFile(const std::string& fileName) {
    const std::unique_ptr<std::istream> file = m_open(fileName);
    play(*file, fileName, std::filesystem::path(fileName).parent_path().string());
}

void MacroPlayer::play(std::istream& macro, const std::string& name, const std::string& folder) {
    const Counted playing(m_depth);
    if (m_depth > deepest) {
        throw HostError("Macros include each other more than " + std::to_string(deepest) +
                        " deep; does one include itself?");
    }
    const FolderVariable here(m_variables, m_folder, folder);
    MacroReader reader(macro, name);
    MacroLine line;
    while (reader.next(line)) {
        runLine(line, name, folder);
    }
}

void MacroPlayer::run(const std::string& name, const std::vector<std::string>& words,
                      const std::string& folder) {
    const MacroCommand* const command = findMacroCommand(name);
    if (command == nullptr) {
        reject("There is no command " + name + ".");
    }
    const MacroCall call{m_session, *this, words, folder};
    m_uncommanded.commandBegins();
    command->run(call);
    m_uncommanded.commandEnded(command->recorded != Recorded::ByOthers);
    if (!m_recorder.isRecording()) {
        return;
    }
    if (const std::string line = recordedLine(*command, call); !line.empty()) {
        m_recorder.recordRaw(line);
    }
}

void MacroPlayer::runLine(const MacroLine& line, const std::string& name,
                          const std::string& folder) {
    try {
        if (m_isStopRequested()) {
            throw HostError("The macro was stopped.");
        }
        run(line.name, m_variables.expand(line.words), folder);
    } catch (const MacroError&) {
        throw; // it names the line of an included macro
    } catch (const std::exception& error) {
        throw MacroError(name, line.number, line.text, messageOf(error));
    }
}

} // namespace corvane::host
