/* The percent-done display of the status line, and stopping by the user.
 *
 *   1. CorUtilStatusStartPercentDone
 *   2. CorUtilStatusCheckPercentDone for each step, until it returns FALSE or the work is done
 *   3. CorUtilStatusFinishPercentDone, in both cases
 *
 * While it is up, the user reaches nothing but Stop and the Esc key, also where a dialog has the
 * focus. A display within a display is allowed: the outermost pair counts. */
#ifndef HOSTAPI_COR_STATUS_H
#define HOSTAPI_COR_STATUS_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Opens the display, and forgets an earlier stop.
 *   text             shown as it is
 *   showStopButton   TRUE to offer a Stop button; Esc works in any case
 *   showProgressBar  TRUE to show a bar
 *   [main-thread] */
void CorUtilStatusStartPercentDone(const char* text, CorBool showStopButton,
                                   CorBool showProgressBar);

/* Replaces the text of the display.
 *   [main-thread & progress] */
void CorUtilStatusSetPercentDoneText(const char* text);

/* Shows the progress and asks whether to go on. Cheap enough for each step of a long loop. Repaints
 * windows, and lets no other callback of the add-on happen.
 *   percent  0 to 100; what lies outside is cut off
 *   returns  TRUE to go on
 *            FALSE when the user pressed Esc or Stop, or when a movie being recorded has failed;
 *            each later check returns FALSE too, until the display is finished
 *   [main-thread & progress] */
CorBool CorUtilStatusCheckPercentDone(int percent);

/* Closes the display. Does nothing when none is open.
 *   [main-thread & progress] */
void CorUtilStatusFinishPercentDone(void);

COR_END_DECLS

#endif
