// Argument lists.
#include "hostapi/CorArgList.h"

#include "host/api/ArgumentList.h"
#include "host/api/TracedCall.h"

#include <new>

using namespace corvane::host;

namespace {

template <class T>
CorBool append(const char* operation, CorArgList l, const char* name, T value) {
    if (!mayProceedUntraced(operation, true)) {
        return FALSE;
    }
    if (!l || !name) {
        reportMisuse(operation, "an argument is NULL");
        return FALSE;
    }
    try {
        l->set(name, value);
        return TRUE;
    } catch (...) {
        reportException(operation);
        return FALSE;
    }
}

} // namespace

CorArgList CorUtilArgListAlloc(void) {
    return mayProceedUntraced("CorUtilArgListAlloc", true) ? new (std::nothrow) CorArgList_s
                                                           : nullptr;
}

CorBool CorUtilArgListAppendFunction(CorArgList l, const char* name, CorGenericFunc f) {
    return append("CorUtilArgListAppendFunction", l, name, f);
}

CorBool CorUtilArgListAppendInt(CorArgList l, const char* name, int value) {
    return append("CorUtilArgListAppendInt", l, name, value);
}

CorBool CorUtilArgListAppendDouble(CorArgList l, const char* name, double value) {
    return append("CorUtilArgListAppendDouble", l, name, value);
}

CorBool CorUtilArgListAppendString(CorArgList l, const char* name, const char* value) {
    return append("CorUtilArgListAppendString", value ? l : nullptr, name, value);
}

CorBool CorUtilArgListAppendIntPtr(CorArgList l, const char* name, int* result) {
    return append("CorUtilArgListAppendIntPtr", result ? l : nullptr, name, result);
}

CorBool CorUtilArgListAppendDoublePtr(CorArgList l, const char* name, double* result) {
    return append("CorUtilArgListAppendDoublePtr", result ? l : nullptr, name, result);
}

void CorUtilArgListDealloc(CorArgList* l) {
    if (l && mayProceedUntraced("CorUtilArgListDealloc", false)) {
        delete *l;
        *l = nullptr;
    }
}
