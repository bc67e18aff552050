/* Locks: while one is held, the host does not draw its frames by itself.
 *
 * A lock is a count, not a mutex. It nests to any depth, is counted per add-on, and holds while the
 * total is above 0. It defers the host's own drawing alone: CorUtilRedraw still draws, widgets
 * paint, modal dialogs run, callbacks arrive, and the idle queue goes on. Whatever was marked for
 * drawing meanwhile is drawn once after the last release.
 *
 * A callback leaves the depth as it found it, with one exception: one that launches a modal dialog
 * may return one deeper, if the dialog's OK and Cancel callbacks return one less deep. Any other
 * difference is noted in the trace and put back.
 *
 * Rationale: a lock may be held for the whole life of a modal dialog, and error boxes are shown
 * under locks. A lock that stopped widgets or callbacks would stop the program. */
#ifndef HOSTAPI_COR_LOCK_H
#define HOSTAPI_COR_LOCK_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Takes a lock for an add-on that has no identity yet, in its entry point.
 *   [main-thread & entry] */
void CorUtilLockOn(void);

/* Releases the lock of CorUtilLockOn. Without one, does nothing and notes it in the trace.
 *   [main-thread & entry] */
void CorUtilLockOff(void);

/* Takes a lock.
 *   id  of CorUtilAddOnRegister; NULL counts as one further, nameless add-on
 *   [main-thread] */
void CorUtilLockStart(CorAddOnID id);

/* Releases one lock of CorUtilLockStart. Without one, does nothing and notes it in the trace.
 *   id  the id that the lock was taken with
 *   [main-thread] */
void CorUtilLockFinish(CorAddOnID id);

COR_END_DECLS

#endif
