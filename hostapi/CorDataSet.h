/* The data set of the active frame: zones, strands and solution time.
 *
 * A zone is one block of data at one solution time. Zones with the same strand number above 0 are
 * the same block at different times; at each moment the host shows, for each strand, the zone at or
 * just before the current solution time, or the strand's first zone before all of them. Zones are
 * numbered from 1. Time is in the units of the data. */
#ifndef HOSTAPI_COR_DATA_SET_H
#define HOSTAPI_COR_DATA_SET_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Tells whether the active frame has a data set.
 *   returns  FALSE without a frame too
 *   [main-thread] */
CorBool CorUtilDataSetIsAvailable(void);

/* Makes the set of enabled zones.
 *   enabled  receives a set that the caller frees with CorUtilSetDealloc; NULL on FALSE
 *   returns  TRUE, also for an empty set
 *            FALSE without a data set, without memory, or when enabled is NULL
 *   [main-thread] */
CorBool CorUtilZoneGetEnabled(CorSet* enabled);

/* Steps through a set in ascending order.
 *   member   0 to begin, then the last result
 *   returns  the smallest member above member
 *            0 after the last one, or when set is NULL
 *   [main-thread] */
long CorUtilSetGetNextMember(CorSet set, long member);

/* Frees a set and sets *set to NULL. Does nothing when set or *set is NULL.
 *   [main-thread] */
void CorUtilSetDealloc(CorSet* set);

/* Tells the solution time of a zone.
 *   returns  0.0 for a zone that does not exist
 *   [main-thread] */
double CorUtilZoneGetSolutionTime(long zone);

/* Tells the strand of a zone.
 *   returns  above 0: the zone belongs to a block that changes with time
 *            0 or less: it is static; 0 for a zone that does not exist too
 *   [main-thread] */
long CorUtilZoneGetStrandID(long zone);

/* Tells the current solution time.
 *   returns  0.0 without a data set
 *   [main-thread] */
double CorUtilSolutionTimeGetCurrent(void);

/* Sets the current solution time. Marks the frame for drawing, and draws nothing by itself.
 *   t        any finite time, between the zones' times or outside of them as well
 *   returns  TRUE
 *            FALSE when t is not finite, or without a data set; the time is unchanged then
 *   [main-thread] */
CorBool CorUtilSolutionTimeSetCurrent(double t);

COR_END_DECLS

#endif
