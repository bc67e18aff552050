/* Argument lists: named, typed arguments of an operation. */
#ifndef HOSTAPI_COR_ARG_LIST_H
#define HOSTAPI_COR_ARG_LIST_H

#include "hostapi/CorTypes.h"

COR_BEGIN_DECLS

CorArgList CorUtilArgListAlloc(void);
CorBool CorUtilArgListAppendFunction(CorArgList l, const char* name, CorGenericFunc f);
CorBool CorUtilArgListAppendInt(CorArgList l, const char* name, int value);
CorBool CorUtilArgListAppendDouble(CorArgList l, const char* name, double value);
CorBool CorUtilArgListAppendString(CorArgList l, const char* name, const char* value);
CorBool CorUtilArgListAppendIntPtr(CorArgList l, const char* name, int* result);
CorBool CorUtilArgListAppendDoublePtr(CorArgList l, const char* name, double* result);
void CorUtilArgListDealloc(CorArgList* l);

COR_END_DECLS

#endif
