/* Frames of the current page, and the paper they lie on.
 *
 * A page holds a stack of frames. One of them is active; it need not be the top one. Each frame has
 * a number of its own above 0 that is never given to another frame. A page may have no frame.
 *
 * To visit all frames without changing anything:
 *   1. CorUtilFrameLightweightPopStart: the queries of this header speak of the first frame.
 *   2. Ask, then CorUtilFrameLightweightPopNext; again while it returns TRUE.
 *   3. CorUtilFrameLightweightPopEnd: the queries speak of the active frame again. */
#ifndef HOSTAPI_COR_FRAME_H
#define HOSTAPI_COR_FRAME_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Counts the frames on the current page.
 *   returns  0 or more
 *   [main-thread] */
long CorUtilFrameGetCount(void);

/* Tells what the active frame shows.
 *   returns  PlotType_None when there is no frame
 *   [main-thread] */
PlotType_e CorUtilFrameGetPlotType(void);

/* Tells the number of the active frame.
 *   returns  above 0; 0 when there is no frame
 *   [main-thread] */
long CorUtilFrameGetUniqueID(void);

/* Makes the top frame of the stack the active one.
 *   returns  TRUE
 *            FALSE when there is no frame
 *   [main-thread] */
CorBool CorUtilFrameActivateTop(void);

/* Makes a frame the active one. The order of the stack stays as it is.
 *   returns  TRUE
 *            FALSE when the page has no frame of that number; the active frame stays
 *   [main-thread] */
CorBool CorUtilFrameActivateByUniqueID(long id);

/* Puts the top frame below all others, and makes the new top frame the active one. Doing so as
 * often as there are frames visits each of them and restores the order.
 *   returns  TRUE
 *            FALSE when there is no frame
 *   [main-thread] */
CorBool CorUtilFramePushTop(void);

/* Begins a visit of all frames, and stands on the first one. Draws nothing, tells no listener, and
 * changes neither the stack nor the active frame.
 *   [main-thread & !popping] */
void CorUtilFrameLightweightPopStart(void);

/* Goes on to the next frame of the visit.
 *   returns  TRUE when the queries speak of a further frame
 *            FALSE after the last one, or when no visit has begun
 *   [main-thread & popping] */
CorBool CorUtilFrameLightweightPopNext(void);

/* Ends the visit. Does nothing when none has begun.
 *   [main-thread & popping] */
void CorUtilFrameLightweightPopEnd(void);

/* Tells where the active frame lies, or the visited one. Writes nothing when there is no frame.
 *   x, y  left and top edge in paper units; y grows downwards
 *   w, h  width and height in paper units
 *         each may be NULL
 *   [main-thread] */
void CorUtilFrameGetPosAndSize(double* x, double* y, double* w, double* h);

/* Converts a width between paper units and pixels. It is a length, not a position: only the scale
 * counts, the same as that of a movie in screen size. A width of whole pixels comes out whole.
 *   v        finite
 *   returns  the width in units of to
 *            v when from equals to
 *   [main-thread] */
double CorUtilConvertXDimension(double v, CoordSys_e from, CoordSys_e to);

/* Converts a height between paper units and pixels, as CorUtilConvertXDimension does a width.
 *   [main-thread] */
double CorUtilConvertYDimension(double v, CoordSys_e from, CoordSys_e to);

/* Tells the size of the drawing area in pixels: 0 by 0 while the window is minimised.
 *   width, height  each may be NULL
 *   [main-thread] */
void CorUtilWorkAreaGetDimensions(int* width, int* height);

COR_END_DECLS

#endif
