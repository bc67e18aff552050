/* Macro commands of add-ons, and recording of macros.
 *
 * A macro is a text file of one command per line. A command of an add-on stands in it with the
 * add-on's macro name and the text of the command, quoted so that any text survives. Commands run
 * only when neither a modal dialog nor an animation is up. What a macro does is recorded again when
 * recording goes on during its replay. */
#ifndef HOSTAPI_COR_MACRO_H
#define HOSTAPI_COR_MACRO_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Runs one command of the add-on.
 *   commandString  a copy for this call, without trailing blanks; the callback may write in it
 *   errorMessage   points to NULL; after a failure the callback may put a string of
 *                  CorUtilStringAlloc there, which the host shows with file name and line number,
 *                  and frees
 *   returns        TRUE
 *                  FALSE to stop the macro; an exception counts as FALSE, with its what()
 *   [main-thread] */
typedef CorBool (*CorMacroCommandCallback)(char* commandString, char** errorMessage);

/* Makes the commands of an add-on known, from now to the end of the process.
 *   macroName  what the commands are recorded under; found again by exactly this text
 *   returns    TRUE
 *              FALSE when an argument is NULL, or the name is empty or taken; nothing is added then
 *   [main-thread] */
CorBool CorUtilMacroAddCommandCallback(const char* macroName, CorMacroCommandCallback f);

/* Tells whether the host records a macro. It may do so during a replay too.
 *   [main-thread] */
CorBool CorUtilMacroIsRecordingActive(void);

/* Records a command of an add-on.
 *   macroName  as for CorUtilMacroAddCommandCallback
 *   command    any text; the host quotes it
 *   returns    TRUE
 *              FALSE when no macro is being recorded; nothing is written then
 *   [main-thread & macro-recording] */
CorBool CorUtilMacroRecordExtCommand(const char* macroName, const char* command);

/* Records a line exactly as it is given, such as a command of the host.
 *   line     without line break
 *   returns  TRUE
 *            FALSE when no macro is being recorded; nothing is written then
 *   [main-thread & macro-recording] */
CorBool CorUtilMacroRecordRawCommand(const char* line);

COR_END_DECLS

#endif
