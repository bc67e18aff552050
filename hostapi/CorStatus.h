/* The percent-done display of the status line, and stopping by the user. */
#ifndef HOSTAPI_COR_STATUS_H
#define HOSTAPI_COR_STATUS_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

void CorUtilStatusStartPercentDone(const char* text, CorBool showStopButton,
                                   CorBool showProgressBar);
void CorUtilStatusSetPercentDoneText(const char* text);
CorBool CorUtilStatusCheckPercentDone(int percent);
void CorUtilStatusFinishPercentDone(void);

COR_END_DECLS

#endif
