/* Notification of changes of the host's state. */
#ifndef HOSTAPI_COR_STATE_CHANGE_H
#define HOSTAPI_COR_STATE_CHANGE_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

typedef void (*CorStateChangeCallback)(StateChange_e);
CorBool CorUtilStateChangeAddCallbackX(CorArgList args);

typedef void (*CorStateChangeListener)(StateChange_e stateChange, void* clientData);
CorBool CorUtilStateChangeAddListener(StateChangeMode_e mode, CorStateChangeListener f,
                                      void* clientData);
CorBool CorUtilStateChangeRemoveListener(CorStateChangeListener f, void* clientData);

COR_END_DECLS

#endif
