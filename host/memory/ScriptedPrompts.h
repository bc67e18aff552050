// Dialogs that answer by a script, and remember what they showed.
#pragma once

#include "host/core/ports/Ports.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace corvane::memory {

struct ShownDialog {
    enum class Kind { Error, Notice, Question, FileToRead, FileToWrite, Help };

    Kind kind = Kind::Error;
    std::string text;        ///< the message; of file dialogs the file type; of help the page
    std::string defaultName; ///< of file dialogs
    std::string filter;      ///< of file dialogs

    friend bool operator==(const ShownDialog&, const ShownDialog&) = default;
};

/// Without a script, questions are answered with no and file dialogs are cancelled.
class ScriptedPrompts : public host::UserPrompts {
public:
    void showError(const std::string& message) override;
    void showNotice(const std::string& message) override;
    bool askYesNo(const std::string& question) override;
    std::optional<std::string> askFileName(bool forWriting, const std::string& fileType,
                                           const std::string& defaultName,
                                           const std::string& filter) override;
    bool showHelp(const std::string& page) override;

    /// From now on, questions that hold this text are answered so; of several, the last one counts.
    void answer(std::string partOfQuestion, bool yes);
    /// The next file dialog gives this name; more of them queue up.
    void answerFile(std::string name) { m_fileNames.push_back(std::move(name)); }
    /// From now on file dialogs that no name waits for give one in this folder, with the extension
    /// that they ask for; empty: they are cancelled again.
    void answerFilesIn(std::string folder) { m_folder = std::move(folder); }
    /// Drops the names that no dialog has asked for.
    void forgetFiles() { m_fileNames.clear(); }
    /// From now on there are no help pages.
    void loseHelp() { m_hasHelp = false; }

    const std::vector<ShownDialog>& shown() const { return m_shown; }
    /// The texts alone, of one kind.
    std::vector<std::string> shown(ShownDialog::Kind kind) const;
    void clear() { m_shown.clear(); }

private:
    struct Answer {
        std::string part;
        bool yes;
    };

    std::vector<ShownDialog> m_shown;
    std::vector<Answer> m_answers;
    std::deque<std::string> m_fileNames;
    std::string m_folder; ///< empty: none
    bool m_hasHelp = true;
};

} // namespace corvane::memory
