/* Style values, addressed by a path of keywords. */
#ifndef HOSTAPI_COR_STYLE_H
#define HOSTAPI_COR_STYLE_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

int CorUtilStyleSet(CorArgList args);
int CorUtilStyleGet(CorArgList args);

COR_END_DECLS

#endif
