/* Ready-made dialogs of the host: messages, questions, file names, help.
 *
 * Each returns when the user has answered. Windows paint meanwhile, locks or not, and the add-on's
 * own dialogs take no input. Texts are shown as they are, with line breaks and without any mark-up.
 * Without windows, messages go to standard error, questions are answered with no, and no file name
 * is given. */
#ifndef HOSTAPI_COR_DIALOG_H
#define HOSTAPI_COR_DIALOG_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Shows an error.
 *   returns  TRUE, after OK
 *   [main-thread] */
CorBool CorUtilDialogErrMsg(const char* message);

/* Shows a notice, or asks a question.
 *   returns  MessageBox_Notice  TRUE
 *            MessageBox_YesNo   TRUE for Yes alone; FALSE for No, for Esc and for closing the box
 *   [main-thread] */
CorBool CorUtilDialogMessageBox(const char* message, MessageBox_e type);

/* Asks for a file name. Does not ask whether to replace a file: that is the caller's question.
 *   fileName         receives an absolute path that the caller frees with CorUtilStringDealloc;
 *                    NULL on FALSE
 *   fileTypeName     what kind of file it is, shown to the user
 *   defaultFileName  where the dialog starts, folder and name; NULL or empty for no preference
 *   filter           such as "*.ext"; all files can be seen too. When writing, the host may append
 *                    this ending to a name without a dot.
 *   returns          TRUE when the user chose a name
 *                    FALSE otherwise
 *   [main-thread] */
CorBool CorUtilDialogGetFileName(SelectFileOption_e option, char** fileName,
                                 const char* fileTypeName, const char* defaultFileName,
                                 const char* filter);

/* Opens a help page in the user's browser. A failure is told in the status line, never in a box.
 *   page          file name in the host's help folder
 *   flag, number  FALSE and 0; have no meaning
 *   returns       TRUE
 *                 FALSE when there is no such page
 *   [main-thread] */
CorBool CorUtilHelp(const char* page, CorBool flag, int number);

COR_END_DECLS

#endif
