/* Options in the menus of the host's main window. */
#ifndef HOSTAPI_COR_MENU_H
#define HOSTAPI_COR_MENU_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

CorBool CorUtilMenuAddOption(const char* menu, const char* label, int one, void (*callback)(void));
CorBool CorUtilMenuSetSensitivity(const char* menu, const char* label, CorBool sensitive);

COR_END_DECLS

#endif
