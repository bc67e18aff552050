/* Frames of the current page, and the paper they lie on. */
#ifndef HOSTAPI_COR_FRAME_H
#define HOSTAPI_COR_FRAME_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

long CorUtilFrameGetCount(void);
PlotType_e CorUtilFrameGetPlotType(void);
long CorUtilFrameGetUniqueID(void);
CorBool CorUtilFrameActivateTop(void);
CorBool CorUtilFrameActivateByUniqueID(long id);
CorBool CorUtilFramePushTop(void);
void CorUtilFrameLightweightPopStart(void);
CorBool CorUtilFrameLightweightPopNext(void);
void CorUtilFrameLightweightPopEnd(void);
void CorUtilFrameGetPosAndSize(double* x, double* y, double* w, double* h);
double CorUtilConvertXDimension(double v, CoordSys_e from, CoordSys_e to);
double CorUtilConvertYDimension(double v, CoordSys_e from, CoordSys_e to);
void CorUtilWorkAreaGetDimensions(int* width, int* height);

COR_END_DECLS

#endif
