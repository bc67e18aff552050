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
std::string extensionOf(const std::string& name) {
    const auto dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

bool askYesNo(const std::string& question) {
    const HostLock lock;
    return CorUtilDialogMessageBox(question.c_str(), MessageBox_YesNo) != FALSE;
}

} // namespace

CurrentFileManager::CurrentFileManager(const std::string& fileName, const std::string& extension,
                                       const std::string& fileTypeName)
    : m_fileName(fileName), m_extension(extension), m_fileTypeName(fileTypeName) {
    addFileNameExtension(m_fileName, m_extension);
}

const std::string& CurrentFileManager::fileName() const {
    return m_fileName;
}

const std::string& CurrentFileManager::extension() const {
    return m_extension;
}

bool CurrentFileManager::fileHasBeenSelected() const {
    return m_fileHasBeenSelected;
}

void CurrentFileManager::setFileName(const std::string& fileName) {
    m_fileName = fileName;
    const std::string extension = extensionOf(fileName);
    if (extension.empty()) {
        addFileNameExtension(m_fileName, m_extension);
    } else {
        m_extension = extension;
    }
}

void CurrentFileManager::setExtension(const std::string& extension) {
    m_extension = extension;
    addFileNameExtension(m_fileName, m_extension);
}

bool CurrentFileManager::promptForFile(SelectFileOption_e option) {
    std::string chosen;
    if (!askHostForFile(option, chosen)) {
        return false;
    }
    settleExtension(chosen);
    if (option == SelectFile_Write && !promptForFileOverwrite(chosen)) {
        return false;
    }
    m_fileName = chosen;
    m_fileHasBeenSelected = true;
    return true;
}

bool CurrentFileManager::askHostForFile(SelectFileOption_e option, std::string& chosen) const {
    const std::string filter = "*." + m_extension;
    const HostLock lock;
    char* text = nullptr;
    const CorBool accepted = CorUtilDialogGetFileName(option, &text, m_fileTypeName.c_str(),
                                                      m_fileName.c_str(), filter.c_str());
    const std::unique_ptr<char, HostStringDeallocator> owner(text);
    if (!accepted || !text) {
        return false;
    }
    chosen = text;
    return true;
}

void CurrentFileManager::settleExtension(std::string& chosen) const {
    const std::string extension = extensionOf(chosen);
    if (extension == m_extension) {
        return;
    }
    if (extension.empty() ||
        !askYesNo("You have specified an extension other than the default file extension\n"
                  "Are you sure you want to save the file as " +
                  chosen + "\nClick \"No\" to restore the default file extension.")) {
        addFileNameExtension(chosen, m_extension);
    }
}

void addFileNameExtension(std::string& name, const std::string& extension) {
    const auto dot = name.rfind('.');
    if (dot == std::string::npos) {
        name += '.';
    } else {
        name.erase(dot + 1);
    }
    name += extension;
}

bool fileExists(const std::string& name) {
    return std::ifstream(name).is_open();
}

bool promptForFileOverwrite(const std::string& name) {
    return !fileExists(name) ||
           askYesNo("The file: " + name + " exists.\nAre you sure you want to overwrite it?");
}

} // namespace corvane::corutiltools
