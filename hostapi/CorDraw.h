/* Drawing of the frames. */
#ifndef HOSTAPI_COR_DRAW_H
#define HOSTAPI_COR_DRAW_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

void CorUtilDrawGraphics(CorBool doDrawing);
CorBool CorUtilRedraw(CorBool fullRedraw);

COR_END_DECLS

#endif
