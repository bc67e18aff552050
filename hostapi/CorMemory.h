/* Strings and arrays that host and add-on hand to each other.
 *
 * Rationale: host and add-on may use different allocators, so what crosses the boundary is made and
 * freed by the host alone. What is freed a second time, or never came from the host, is left alone
 * and noted in the trace. */
#ifndef HOSTAPI_COR_MEMORY_H
#define HOSTAPI_COR_MEMORY_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Makes a string.
 *   maxLength  bytes of text, 0 or more; the NUL behind it is extra
 *   returns    an empty string with room for maxLength bytes, to be freed with CorUtilStringDealloc
 *              NULL without memory, or when maxLength is negative
 *   [main-thread] */
char* CorUtilStringAlloc(long maxLength);

/* Frees a string and sets *s to NULL. Does nothing when s or *s is NULL.
 *   [main-thread] */
void CorUtilStringDealloc(char** s);

/* Frees an array that the host made, such as that of CorGUIListGetSelectedItems, and sets *a to
 * NULL. Does nothing when a or *a is NULL.
 *   [main-thread] */
void CorUtilArrayDealloc(void** a);

COR_END_DECLS

#endif
