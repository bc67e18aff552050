/* Recording of pictures into a movie file. */
#ifndef HOSTAPI_COR_EXPORT_H
#define HOSTAPI_COR_EXPORT_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

CorBool CorUtilExportIsRecording(void);
CorBool CorUtilExportStart(void);
CorBool CorUtilExportNextFrame(void);
CorBool CorUtilExportFinish(void);
CorBool CorUtilExportCancel(void);
CorBool CorUtilExportSetup(const char* name, const char* text, int integerValue,
                           double doubleValue);

COR_END_DECLS

#endif
