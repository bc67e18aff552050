/* Locks: while one is held the host does not draw by itself. */
#ifndef HOSTAPI_COR_LOCK_H
#define HOSTAPI_COR_LOCK_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

void CorUtilLockOn(void);
void CorUtilLockOff(void);
void CorUtilLockStart(CorAddOnID id);
void CorUtilLockFinish(CorAddOnID id);

COR_END_DECLS

#endif
