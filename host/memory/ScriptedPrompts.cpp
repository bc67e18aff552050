// Dialogs that answer by a script, and remember what they showed.
#include "host/memory/ScriptedPrompts.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace corvane::memory {

using Kind = ShownDialog::Kind;

namespace {

/// Users can choose only what exists to read it.
std::optional<std::string> nameIn(const std::string& folder, const std::string& filter,
                                  bool forWriting) {
    const std::string extension = std::filesystem::path(filter).extension().string();
    const std::string name = folder + "/file" + extension;
    return forWriting || std::filesystem::exists(name) ? std::optional(name) : std::nullopt;
}

} // namespace

void ScriptedPrompts::showError(const std::string& message) {
    m_shown.push_back({Kind::Error, message, {}, {}});
}

void ScriptedPrompts::showNotice(const std::string& message) {
    m_shown.push_back({Kind::Notice, message, {}, {}});
}

bool ScriptedPrompts::askYesNo(const std::string& question) {
    m_shown.push_back({Kind::Question, question, {}, {}});
    const auto found = std::find_if(m_answers.rbegin(), m_answers.rend(), [&](const Answer& known) {
        return question.find(known.part) != std::string::npos;
    });
    return found != m_answers.rend() && found->yes;
}

std::optional<std::string> ScriptedPrompts::askFileName(bool forWriting,
                                                        const std::string& fileType,
                                                        const std::string& defaultName,
                                                        const std::string& filter) {
    m_shown.push_back(
        {forWriting ? Kind::FileToWrite : Kind::FileToRead, fileType, defaultName, filter});
    if (m_fileNames.empty()) {
        return m_folder.empty() ? std::nullopt : nameIn(m_folder, filter, forWriting);
    }
    std::string name = std::move(m_fileNames.front());
    m_fileNames.pop_front();
    return name;
}

bool ScriptedPrompts::showHelp(const std::string& page) {
    m_shown.push_back({Kind::Help, page, {}, {}});
    return m_hasHelp;
}

void ScriptedPrompts::answer(std::string partOfQuestion, bool yes) {
    m_answers.push_back({std::move(partOfQuestion), yes});
}

std::vector<std::string> ScriptedPrompts::shown(ShownDialog::Kind kind) const {
    std::vector<std::string> texts;
    for (const ShownDialog& dialog : m_shown) {
        if (dialog.kind == kind) {
            texts.push_back(dialog.text);
        }
    }
    return texts;
}

} // namespace corvane::memory
