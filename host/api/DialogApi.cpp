// Messages, questions, file names, help.
#include "hostapi/CorDialog.h"

#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"
#include "host/core/files/InputFiles.h"
#include "hostapi/CorMemory.h"

#include <cstring>
#include <optional>

using namespace corvane::host;

namespace {

/// Null without memory.
char* copyForAddOn(const std::string& text) {
    char* const copy = CorUtilStringAlloc(static_cast<long>(text.size()));
    if (copy) {
        std::memcpy(copy, text.c_str(), text.size() + 1);
    }
    return copy;
}

} // namespace

CorBool CorUtilDialogErrMsg(const char* message) {
    const TracedCall call("CorUtilDialogErrMsg", message);
    return call.answer(false, [&](Session& session) {
        if (!message) {
            return call.misuse("message is NULL");
        }
        session.prompts().showError(message);
        return true;
    });
}

CorBool CorUtilDialogMessageBox(const char* message, MessageBox_e type) {
    const TracedCall call("CorUtilDialogMessageBox", message, type);
    return call.answer(false, [&](Session& session) {
        if (!message) {
            return call.misuse("message is NULL");
        }
        if (type == MessageBox_YesNo) {
            return session.prompts().askYesNo(message);
        }
        session.prompts().showNotice(message);
        return true;
    });
}

CorBool CorUtilDialogGetFileName(SelectFileOption_e option, char** fileName,
                                 const char* fileTypeName, const char* defaultFileName,
                                 const char* filter) {
    const TracedCall call("CorUtilDialogGetFileName", option, fileName, fileTypeName,
                          defaultFileName, filter);
    if (fileName) {
        *fileName = nullptr;
    }
    return call.answer(false, [&](Session& session) {
        if (!fileName) {
            return call.misuse("fileName is NULL");
        }
        const std::optional<std::string> chosen =
            session.prompts().askFileName(option == SelectFile_Write, textOf(fileTypeName),
                                          textOf(defaultFileName), textOf(filter));
        if (!chosen) {
            return false;
        }
        if (option != SelectFile_Write) {
            inputFiles().add(*chosen);
        }
        *fileName = copyForAddOn(*chosen);
        return *fileName != nullptr;
    });
}

CorBool CorUtilHelp(const char* page, CorBool flag, int number) {
    const TracedCall call("CorUtilHelp", page, flag != FALSE, number);
    return call.answer(false, [&](Session& session) {
        return page ? session.prompts().showHelp(page) : call.misuse("page is NULL");
    });
}
