/* Strings and arrays that host and add-on hand to each other. */
#ifndef HOSTAPI_COR_MEMORY_H
#define HOSTAPI_COR_MEMORY_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

char* CorUtilStringAlloc(long maxLength);
void CorUtilStringDealloc(char** s);
void CorUtilArrayDealloc(void** a);

COR_END_DECLS

#endif
