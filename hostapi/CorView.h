/* The 3D view of the active frame. */
#ifndef HOSTAPI_COR_VIEW_H
#define HOSTAPI_COR_VIEW_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

void CorUtilThreeDViewGetViewerPos(double* x, double* y, double* z);
void CorUtilThreeDViewGetViewerAngle(double* psi, double* theta, double* alpha);
void CorUtilThreeDViewGetProjection(double* fieldOfView, double* viewWidth,
                                    CorBool* isInPerspective);
CorBool CorUtilViewRotate3D(RotateAxis_e axis, double degrees, double vx, double vy, double vz,
                            RotateOrigin_e origin);

COR_END_DECLS

#endif
