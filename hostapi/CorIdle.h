/* The idle queue: work for when no event is pending. */
#ifndef HOSTAPI_COR_IDLE_H
#define HOSTAPI_COR_IDLE_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

typedef void (*CorOnIdleCallback)(long clientData);
CorBool CorUtilOnIdleQueueAddCallback(CorOnIdleCallback f, long clientData);

COR_END_DECLS

#endif
