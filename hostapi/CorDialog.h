/* Ready-made dialogs of the host: messages, questions, file names, help. */
#ifndef HOSTAPI_COR_DIALOG_H
#define HOSTAPI_COR_DIALOG_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

CorBool CorUtilDialogErrMsg(const char* message);
CorBool CorUtilDialogMessageBox(const char* message, MessageBox_e type);
CorBool CorUtilDialogGetFileName(SelectFileOption_e option, char** fileName,
                                 const char* fileTypeName, const char* defaultFileName,
                                 const char* filter);
CorBool CorUtilHelp(const char* page, CorBool flag, int number);

COR_END_DECLS

#endif
