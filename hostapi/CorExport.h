/* Recording of pictures into a movie file.
 *
 *   1. CorUtilExportSetup for each value, or the style values of the same names under ExportSetup
 *   2. CorUtilExportStart, which records the picture of the present state as the first one
 *   3. CorUtilExportNextFrame for each further picture
 *   4. CorUtilExportFinish, or CorUtilExportCancel
 *
 * Pictures are drawn off screen, whether or not drawing is suspended, and all have the same size.
 * The movie is written beside its destination and takes its place when it is finished: until then,
 * and after a failure or a cancel, a file that stood there is untouched.
 *
 * The values of the set-up, what carries each of them, its range and what it is at first:
 *
 *   ExportFormat                integer  ExportFormat_e; ExportFormat_AVI
 *   ExportRegion                integer  ExportRegion_e; ExportRegion_CurrentFrame
 *   ImageWidth                  integer  4 to 32766 pixels; 512. The height follows from the
 *                                        region. A format that needs even sizes pads the picture.
 *   AnimationSpeed              double   0.001 to 200 frames per second; 30
 *   UseSuperSampleAntiAliasing  integer  0 or 1; 0
 *   SuperSampleFactor           integer  2 to 16; 3
 *   AVICompression              integer  AVICompression_e; AVICompression_LinePreserving
 *   FlashImageType              integer  FlashImageType_e; FlashImageType_Lossless
 *   FlashCompressionType        integer  FlashCompressionType_e; FlashCompressionType_BestSpeed
 *   ExportFName                 text     path of the movie; empty
 *
 * In a macro a line such as "$!EXPORTSETUP AnimationSpeed = 30" sets one of them. Numbers are
 * plain, booleans true or false, the file name stands in double quotes, and the keywords are:
 *
 *   ExportFormat                AVI, FLV, FLASH (SWF), MPEG4, RASTERMETAFILE, WMV
 *   ExportRegion                CURRENTFRAME, ALLFRAMES, WORKAREA
 *   AVICompression              COLORPRESERVING, LINEPRESERVING, LOSSLESSUNCOMPRESSED
 *   FlashImageType              LOSSLESS, JPEG, 256COLOR
 *   FlashCompressionType        BESTSPEED, SMALLESTSIZE */
#ifndef HOSTAPI_COR_EXPORT_H
#define HOSTAPI_COR_EXPORT_H

#include "hostapi/CorEnums.h"
#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Tells whether a movie is being recorded.
 *   [main-thread] */
CorBool CorUtilExportIsRecording(void);

/* Opens the movie and records the present state as its first picture.
 *   returns  TRUE
 *            FALSE when a movie is being recorded already, which goes on
 *            FALSE when the format holds no movies, there is no file name or no frame, the file
 *            cannot be written, or the encoder fails; nothing is recorded then, and no partial file
 *            remains. The host tells the reason in its status line; the message is the caller's.
 *   [main-thread & !recording] */
CorBool CorUtilExportStart(void);

/* Records the present state as the next picture. The result may be ignored: the host keeps the
 * first failure, stops the caller by the next CorUtilStatusCheckPercentDone, and shows the cause
 * once the movie has been cancelled or finished.
 *   returns  TRUE
 *            FALSE when nothing is being recorded, or after a failure
 *   [main-thread & recording] */
CorBool CorUtilExportNextFrame(void);

/* Ends the movie and puts it in its place. May take long.
 *   returns  TRUE
 *            FALSE when nothing is being recorded
 *            FALSE when the movie could not be completed, which the host reports by itself
 *            nothing is being recorded any more in any case
 *   [main-thread & recording] */
CorBool CorUtilExportFinish(void);

/* Gives the movie up and removes what was written of it.
 *   returns  TRUE
 *            FALSE when nothing is being recorded
 *   [main-thread & recording] */
CorBool CorUtilExportCancel(void);

/* Sets one value of the set-up.
 *   name          of the list above; letter case does not count
 *   text          for ExportFName; NULL for the others
 *   integerValue  for integers; 0 for the others
 *   doubleValue   for AnimationSpeed; 0 for the others
 *   returns       TRUE, also when the value was there already
 *                 FALSE for an unknown name, a value out of range, or while a movie is being
 *                 recorded; nothing is changed then
 *   [main-thread & !recording] */
CorBool CorUtilExportSetup(const char* name, const char* text, int integerValue,
                           double doubleValue);

COR_END_DECLS

#endif
