/* Registration of an add-on, and its entry point.
 *
 * The life of an add-on:
 *   1. The host makes its main window, menus, style values and message loop. It has no data yet.
 *   2. It loads the add-on's library and calls InitCorAddOn113 once. The add-on registers itself,
 *      its menu options, its macro commands and its listeners.
 *   3. The host loads what the user asked for, then runs its event loop. State changes tell of it.
 *   4. At the end it delivers StateChange_HostQuit, drops the idle queue, and deletes the widgets.
 *      The library stays loaded until the process ends, and operations may be called to the very
 *      last: once the host is gone they do nothing and answer their failure. So objects of the
 *      add-on may be destroyed together with the process.
 *
 * An exception may leave a callback of an add-on: the host catches it, shows its what() in one
 * error box, and goes on. Whether it ends in that way or returns, the depth of locks and the
 * suspension of drawing are brought back to what they were at the call, but for the lock of a
 * modal dialog (CorLock.h). No operation throws an exception at the add-on. */
#ifndef HOSTAPI_COR_ADD_ON_H
#define HOSTAPI_COR_ADD_ON_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Registers the add-on, which the host then shows in its list of add-ons.
 *   interfaceNumber  110, the number of this contract; the host reports any other one and goes on
 *   name             shown to the user
 *   version          shown to the user; any text
 *   author           shown to the user
 *   returns          the add-on's identity, valid until the process ends
 *                    NULL when name is NULL; nothing is registered then
 *   [main-thread & entry] */
CorAddOnID CorUtilAddOnRegister(int interfaceNumber, const char* name, const char* version,
                                const char* author);

/* Exported by the add-on under exactly this name, and called by the host once, right after loading.
 * A library without it is reported and unloaded. An exception out of it is reported; the host goes
 * on.
 *   [main-thread] */
void InitCorAddOn113(void);

COR_END_DECLS

#endif
