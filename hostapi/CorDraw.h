/* Drawing of the frames.
 *
 * Drawing is lazy: a change of view, style, time or data marks the frame, and nothing is drawn. A
 * picture is made at once by CorUtilRedraw, for each picture of a movie by the exporter, and
 * otherwise when something is marked, drawing is not suspended and no lock is held. Until then the
 * window shows the last finished picture.
 *
 * Rationale: an animation changes the view, light, streamtraces and time of one picture one after
 * the other. Were each of them drawn, every picture would be drawn several times, and half-finished
 * ones would flash up. */
#ifndef HOSTAPI_COR_DRAW_H
#define HOSTAPI_COR_DRAW_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Suspends drawing, or resumes it. Pairs nest: drawing resumes when each FALSE has had its TRUE.
 * One TRUE too many does nothing. Loading a layout and quitting resume drawing altogether. What was
 * marked meanwhile is drawn later, when no lock is held, not within this call.
 *   doDrawing  FALSE to suspend, TRUE to resume
 *   [main-thread] */
void CorUtilDrawGraphics(CorBool doDrawing);

/* Draws and shows the picture, at any lock depth, before it returns.
 *   fullRedraw  TRUE for all frames, FALSE for the active one alone
 *   returns     TRUE; what was drawn is no longer marked
 *               FALSE while drawing is suspended; the picture is marked and drawn later
 *   [main-thread] */
CorBool CorUtilRedraw(CorBool fullRedraw);

COR_END_DECLS

#endif
