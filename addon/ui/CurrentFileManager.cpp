// The current file of a dialog, and asking the user for another one.
#include "addon/ui/CurrentFileManager.h"

#include "addon/base/HostLock.h"
#include "hostapi/CorHost.h"

#include <fstream>
#include <memory>

namespace corvane::corutiltools {

namespace {

struct HostStringDeallocator {
    void operator()(char* text) const { CorUtilStringDealloc(&text); }
};

// Empty for a name without a dot.
std::string extensionOf(std::string const& name) {
    auto const dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

bool askYesNo(std::string const& question) {
    HostLock const lock;
    return CorUtilDialogMessageBox(question.c_str(), MessageBox_YesNo) != FALSE;
}

} // namespace

CurrentFileManager::CurrentFileManager(std::string const& fileName, std::string const& extension,
                                       std::string const& fileTypeName)
    : m_fileName(fileName), m_extension(extension), m_fileTypeName(fileTypeName) {
    addFileNameExtension(m_fileName, m_extension);
}

std::string const& CurrentFileManager::fileName() const {
    return m_fileName;
}

std::string const& CurrentFileManager::extension() const {
    return m_extension;
}

bool CurrentFileManager::fileHasBeenSelected() const {
    return m_fileHasBeenSelected;
}

void CurrentFileManager::setFileName(std::string const& fileName) {
    m_fileName = fileName;
    std::string const extension = extensionOf(fileName);
    if (extension.empty())
        addFileNameExtension(m_fileName, m_extension);
    else
        m_extension = extension;
}

void CurrentFileManager::setExtension(std::string const& extension) {
    m_extension = extension;
    addFileNameExtension(m_fileName, m_extension);
}

bool CurrentFileManager::promptForFile(SelectFileOption_e option) {
    std::string chosen;
    if (!askHostForFile(option, chosen))
        return false;
    settleExtension(chosen);
    if (option == SelectFile_Write && !promptForFileOverwrite(chosen))
        return false;
    m_fileName = chosen;
    m_fileHasBeenSelected = true;
    return true;
}

bool CurrentFileManager::askHostForFile(SelectFileOption_e option, std::string& chosen) const {
    std::string const filter = "*." + m_extension;
    HostLock const lock;
    char* text = nullptr;
    CorBool const accepted = CorUtilDialogGetFileName(option, &text, m_fileTypeName.c_str(),
                                                      m_fileName.c_str(), filter.c_str());
    std::unique_ptr<char, HostStringDeallocator> const owner(text);
    if (!accepted || !text)
        return false;
    chosen = text;
    return true;
}

void CurrentFileManager::settleExtension(std::string& chosen) const {
    std::string const extension = extensionOf(chosen);
    if (extension == m_extension)
        return;
    if (extension.empty() ||
        !askYesNo("You have specified an extension other than the default file extension\n"
                  "Are you sure you want to save the file as " +
                  chosen + "\nClick \"No\" to restore the default file extension."))
        addFileNameExtension(chosen, m_extension);
}

void addFileNameExtension(std::string& name, std::string const& extension) {
    auto const dot = name.rfind('.');
    if (dot == std::string::npos)
        name += '.';
    else
        name.erase(dot + 1);
    name += extension;
}

bool fileExists(std::string const& name) {
    return std::ifstream(name).is_open();
}

bool promptForFileOverwrite(std::string const& name) {
    return !fileExists(name) ||
           askYesNo("The file: " + name + " exists.\nAre you sure you want to overwrite it?");
}

} // namespace corvane::corutiltools
