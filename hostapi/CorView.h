/* The 3D view of the active frame.
 *
 * A view is three angles, the position of the viewer, a width, the projection and a field of view.
 * Psi tilts the line of sight away from +Z, theta turns it about Z, alpha twists the picture about
 * it. Angles are kept as they were set: nothing folds them into a range or rounds them, so what was
 * read can be written back exactly. Views are written as style values (hostapi/CorStyle.h), angles
 * in degrees.
 *
 * Rationale: views between two key frames are built from differences of angles. A host that turned
 * a psi of 190 degrees into 170 and another theta would show a leap at the end of the flight. */
#ifndef HOSTAPI_COR_VIEW_H
#define HOSTAPI_COR_VIEW_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Tells where the viewer stands, in data coordinates.
 *   x, y, z  each may be NULL; untouched when the active frame is not a 3D frame
 *   [main-thread] */
void CorUtilThreeDViewGetViewerPos(double* x, double* y, double* z);

/* Tells the angles of the view in RADIANS, unlike the style values and CorUtilViewRotate3D.
 *   psi, theta, alpha  each may be NULL; untouched when the active frame is not a 3D frame
 *   [main-thread] */
void CorUtilThreeDViewGetViewerAngle(double* psi, double* theta, double* alpha);

/* Tells how the view is projected. Field of view and width are kept whichever projection is in use.
 *   fieldOfView      vertical, in degrees, for the perspective projection
 *   viewWidth        horizontal extent of the picture in data units, for the orthographic one
 *   isInPerspective  TRUE or FALSE
 *                    each may be NULL; untouched when the active frame is not a 3D frame
 *   [main-thread] */
void CorUtilThreeDViewGetProjection(double* fieldOfView, double* viewWidth,
                                    CorBool* isInPerspective);

/* Adds to one angle of the view, and carries the viewer rigidly round the rotation origin. The
 * other two angles stay. Marks the frame for drawing, and draws nothing by itself.
 *   axis        the angle to change
 *   degrees     amount in DEGREES, of any size and sign; multiples of 360 may be dropped
 *   vx, vy, vz  vector for further axes; not used by the three of RotateAxis_e
 *   origin      RotateOrigin_Default
 *   returns     TRUE
 *               FALSE when the active frame is not a 3D frame, axis is unknown, or degrees is not
 *               finite; the view is unchanged then
 *   [main-thread] */
CorBool CorUtilViewRotate3D(RotateAxis_e axis, double degrees, double vx, double vy, double vz,
                            RotateOrigin_e origin);

COR_END_DECLS

#endif
