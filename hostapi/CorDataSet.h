/* Data set of the active frame: zones, sets of zones, solution time. */
#ifndef HOSTAPI_COR_DATA_SET_H
#define HOSTAPI_COR_DATA_SET_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

CorBool CorUtilDataSetIsAvailable(void);
CorBool CorUtilZoneGetEnabled(CorSet* enabled);
long CorUtilSetGetNextMember(CorSet set, long member);
void CorUtilSetDealloc(CorSet* set);
double CorUtilZoneGetSolutionTime(long zone);
long CorUtilZoneGetStrandID(long zone);
double CorUtilSolutionTimeGetCurrent(void);
CorBool CorUtilSolutionTimeSetCurrent(double t);

COR_END_DECLS

#endif
