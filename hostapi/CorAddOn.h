/* Registration of an add-on and its entry point. */
#ifndef HOSTAPI_COR_ADD_ON_H
#define HOSTAPI_COR_ADD_ON_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

CorAddOnID CorUtilAddOnRegister(int interfaceNumber, const char* name, const char* version,
                                const char* author);

/* Exported by the add-on, called once by the host at load. */
void InitCorAddOn113(void);

COR_END_DECLS

#endif
