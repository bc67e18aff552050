/* Style values: settings of the host and of the active frame, addressed by a path of keywords.
 *
 * An argument list carries the path as strings "Path1" to "Path8", from the root down. Keywords
 * compare without regard to letter case. A path always reaches the frame that is active at that
 * moment. Each host has these values, and may have more:
 *
 *   ThreeDView
 *     PSIAngle, ThetaAngle, AlphaAngle  double     degrees, any finite value
 *     ViewerPosition / X, Y, Z          double     data coordinates
 *     DrawInPerspective                 boolean    changes nothing else of the view
 *     ViewWidth                         double     data units, above 0; can be written only while
 *                                                  DrawInPerspective is off
 *   StreamAttributes / StreamTiming
 *     TimeAnchor                        double     time units, any finite value: the time along a
 *                                                  streamtrace at which a marker or dash begins
 *     DeltaTime                         double     time units, above 0: from one to the next
 *     ShowMarkers, ShowDashes           boolean
 *   GlobalThreeD / LightSource
 *     Intensity, BackgroundLight        double     0 to 100
 *   ThreeDAxis / FrameAxis
 *     Show                              boolean    the orientation axis
 *   Interface
 *     UseDisplayLists                   boolean
 *   ExportSetup
 *     the values of CorUtilExportSetup, the same ones; see hostapi/CorExport.h
 *
 * A write tells listeners StateChange_ViewChanged for values under ThreeDView, and
 * StateChange_StyleChanged for all others. It marks the frame for drawing when the picture depends
 * on the value, and draws nothing by itself. */
#ifndef HOSTAPI_COR_STYLE_H
#define HOSTAPI_COR_STYLE_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Writes a style value.
 *   args     the path, and the value under
 *              "IValue"  int: an integer, or a boolean as 0 or 1
 *              "DValue"  double: a number
 *              "SValue"  string: a text
 *            A boolean may come with both "IValue" and "DValue".
 *   returns  a StyleSetResult_e:
 *              StyleSet_Ok          written; listeners have been told
 *              StyleSet_Unchanged   the value was there already; nobody has been told
 *              StyleSet_BadPath     there is no such path
 *              StyleSet_BadValue    no value, or not finite, out of range, or of the wrong type
 *              StyleSet_NotAllowed  not in the present state: without a 3D frame, the width of a
 *                                   perspective view, an export value during a recording
 *            on any but StyleSet_Ok nothing is changed
 *   [main-thread] */
int CorUtilStyleSet(CorArgList args);

/* Reads a style value.
 *   args     the path, and where the result goes, which must live until the call returns:
 *              "IValue"  pointer to int: an integer, or a boolean as 0 or 1
 *              "DValue"  pointer to double: a number
 *   returns  a StyleGetResult_e:
 *              StyleGet_Ok            the result is written
 *              StyleGet_BadPath       there is no such path
 *              StyleGet_NotAvailable  the value has another type than the result, or there is none
 *                                     now, such as without a 3D frame
 *            on any but StyleGet_Ok the result is untouched
 *   [main-thread] */
int CorUtilStyleGet(CorArgList args);

COR_END_DECLS

#endif
