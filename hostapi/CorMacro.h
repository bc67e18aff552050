/* Macro commands of add-ons, and recording of macros. */
#ifndef HOSTAPI_COR_MACRO_H
#define HOSTAPI_COR_MACRO_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

typedef CorBool (*CorMacroCommandCallback)(char* commandString, char** errorMessage);
CorBool CorUtilMacroAddCommandCallback(const char* macroName, CorMacroCommandCallback f);
CorBool CorUtilMacroIsRecordingActive(void);
CorBool CorUtilMacroRecordExtCommand(const char* macroName, const char* command);
CorBool CorUtilMacroRecordRawCommand(const char* line);

COR_END_DECLS

#endif
