/* Argument lists: named, typed arguments of an operation.
 *
 * An operation that takes a list says which names it reads, and keeps neither the list nor a
 * pointer of it when it returns. Names are copied. Of two values under one name the last one
 * counts, whatever their types. In C++ corvane::toolbox::ArgList frees the list by itself. */
#ifndef HOSTAPI_COR_ARG_LIST_H
#define HOSTAPI_COR_ARG_LIST_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

/* Makes an empty list.
 *   returns  a list to be freed with CorUtilArgListDealloc
 *            NULL without memory
 *   [main-thread] */
CorArgList CorUtilArgListAlloc(void);

/* Appends a function.
 *   f        of any type; NULL is a value too
 *   returns  TRUE
 *            FALSE when l or name is NULL; nothing is changed then
 *   [main-thread] */
CorBool CorUtilArgListAppendFunction(CorArgList l, const char* name, CorGenericFunc f);

/* Appends an integer, or a boolean as 0 or 1.
 *   returns  as CorUtilArgListAppendFunction
 *   [main-thread] */
CorBool CorUtilArgListAppendInt(CorArgList l, const char* name, int value);

/* Appends a number.
 *   returns  as CorUtilArgListAppendFunction
 *   [main-thread] */
CorBool CorUtilArgListAppendDouble(CorArgList l, const char* name, double value);

/* Appends a copy of a text.
 *   returns  as CorUtilArgListAppendFunction; FALSE when value is NULL too
 *   [main-thread] */
CorBool CorUtilArgListAppendString(CorArgList l, const char* name, const char* value);

/* Appends where an integer result goes.
 *   result   belongs to the caller, and lives until the operation has returned
 *   returns  as CorUtilArgListAppendFunction; FALSE when result is NULL too
 *   [main-thread] */
CorBool CorUtilArgListAppendIntPtr(CorArgList l, const char* name, int* result);

/* Appends where a number goes that is a result.
 *   result   belongs to the caller, and lives until the operation has returned
 *   returns  as CorUtilArgListAppendFunction; FALSE when result is NULL too
 *   [main-thread] */
CorBool CorUtilArgListAppendDoublePtr(CorArgList l, const char* name, double* result);

/* Frees a list and sets *l to NULL. Does nothing when l or *l is NULL.
 *   [main-thread] */
void CorUtilArgListDealloc(CorArgList* l);

COR_END_DECLS

#endif
