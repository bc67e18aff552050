// The current file of a dialog, and asking the user for another one.
#pragma once

#include "hostapi/CorEnums.h"

#include <string>

namespace corvane::corutiltools {

class CurrentFileManager {
public:
    // The extension has no dot; the file name gets it at once. The file type name is what the
    // host's file dialog calls such files.
    CurrentFileManager(const std::string& fileName, const std::string& extension,
                       const std::string& fileTypeName);

    const std::string& fileName() const;
    const std::string& extension() const;

    // Whether the user has chosen a file in a prompt.
    bool fileHasBeenSelected() const;

    // A name with an extension brings its own as the new default; a name without gets the default.
    void setFileName(const std::string& fileName);

    // Also changes the current file's extension.
    void setExtension(const std::string& extension);

    // Asks the user for a file, whether another extension than the default is meant, and for
    // SelectFile_Write whether an existing file may be overwritten. Answers false, with nothing
    // changed, when the user thinks better of it.
    bool promptForFile(SelectFileOption_e option);

private:
    bool askHostForFile(SelectFileOption_e option, std::string& chosen) const;
    void settleExtension(std::string& chosen) const;

    bool m_fileHasBeenSelected = false;
    std::string m_fileName;
    std::string m_extension;
    std::string m_fileTypeName;
};

// Replaces what follows the last dot by the extension, or appends both where there is no dot. A dot
// in a directory's name counts too: such a name without a dot of its own loses its last part.
void addFileNameExtension(std::string& name, const std::string& extension);

// Whether the file can be opened for reading.
bool fileExists(const std::string& name);

// Whether the file may be written: asks the user when it exists.
bool promptForFileOverwrite(const std::string& name);

} // namespace corvane::corutiltools
