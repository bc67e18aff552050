/* Notification of changes of the host's state.
 *
 * Both kinds of callback get the same codes, one call per change, when the host's state is
 * consistent again; the host merges nothing. Codes arrive while drawing is suspended, under locks
 * and during animations too, so a callback should do little more than look at the code, and may
 * leave the rest to the idle queue. It may add callbacks, which hear of the next change, and remove
 * any of them, itself included, which are not called any more. Stepping through the frames by
 * CorUtilFrameLightweightPopStart is no change and tells nobody. */
#ifndef HOSTAPI_COR_STATE_CHANGE_H
#define HOSTAPI_COR_STATE_CHANGE_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Receives the code of a change.
 *   [main-thread] */
typedef void (*CorStateChangeCallback)(StateChange_e);

/* Adds a callback that stays until the process ends.
 *   args     "CallbackFunction"        function: a CorStateChangeCallback
 *            "StateChangeMode"         int: StateChangeMode_Synchronous
 *            "StateChangeCallbackAPI"  int: 1, the callback takes the code alone
 *            The host copies them; the caller may free the list at once.
 *   returns  TRUE
 *            FALSE when "CallbackFunction" is missing or NULL; nothing is added then
 *   [main-thread] */
CorBool CorUtilStateChangeAddCallbackX(CorArgList args);

/* Receives the code of a change, and what it was added with.
 *   [main-thread] */
typedef void (*CorStateChangeListener)(StateChange_e stateChange, void* clientData);

/* Adds a listener. A pair of function and client data that is added again still counts once.
 *   mode        StateChangeMode_Synchronous
 *   clientData  handed back with each call; belongs to the caller
 *   returns     TRUE
 *               FALSE when f is NULL; nothing is added then
 *   [main-thread] */
CorBool CorUtilStateChangeAddListener(StateChangeMode_e mode, CorStateChangeListener f,
                                      void* clientData);

/* Removes a listener. Allowed after the host's shut-down too, when there is nothing left to remove.
 *   returns  TRUE
 *            FALSE when the pair is not there
 *   [main-thread] */
CorBool CorUtilStateChangeRemoveListener(CorStateChangeListener f, void* clientData);

COR_END_DECLS

#endif
