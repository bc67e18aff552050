/* The idle queue: work for the moment when no event is pending. */
#ifndef HOSTAPI_COR_IDLE_H
#define HOSTAPI_COR_IDLE_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Does the work.
 *   clientData  as it was queued
 *   [main-thread] */
typedef void (*CorOnIdleCallback)(long clientData);

/* Queues one call. Calls run in the order in which they were queued; the same one may be queued
 * more than once. A call leaves the queue before it runs, so it may queue itself again: that one
 * runs at the next idle time.
 *
 * Idle time is when an event loop has nothing else to do: that of the main window, or of a dialog
 * above it, whether a lock is held or not. The queue never runs within
 * CorUtilStatusCheckPercentDone, CorUtilRedraw, the delivery of a state change, an export, the
 * loading of a layout, or a macro.
 *   clientData  handed back; wide enough for a pointer wherever long is
 *   returns     TRUE
 *               FALSE when f is NULL, or after StateChange_HostQuit, when the queue is dropped
 *   [main-thread] */
CorBool CorUtilOnIdleQueueAddCallback(CorOnIdleCallback f, long clientData);

COR_END_DECLS

#endif
