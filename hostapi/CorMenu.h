/* Options in the menus of the host's main window. A run without windows has none. */
#ifndef HOSTAPI_COR_MENU_H
#define HOSTAPI_COR_MENU_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Adds an option to a menu.
 *   menu      title of a top-level menu, compared without '&'; a menu that does not exist is made
 *   label     '&' marks the mnemonic
 *   one       1; has no meaning
 *   callback  called when the user chooses the option, with no lock held by the host
 *   returns   TRUE
 *             FALSE for a NULL argument, or without a main window; nothing is added then
 *   [main-thread] */
CorBool CorUtilMenuAddOption(const char* menu, const char* label, int one, void (*callback)(void));

/* Makes an option usable, or dims it. A new option is usable.
 *   menu     as for CorUtilMenuAddOption
 *   label    exactly as it was added
 *   returns  TRUE
 *            FALSE when there is no such option
 *   [main-thread] */
CorBool CorUtilMenuSetSensitivity(const char* menu, const char* label, CorBool sensitive);

COR_END_DECLS

#endif
