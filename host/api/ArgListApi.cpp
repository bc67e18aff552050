// Argument lists.
#include "hostapi/CorArgList.h"

#include "host/api/ArgumentList.h"
#include "host/api/TracedCall.h"
#include "host/core/base/SecondTry.h"

#include <string>
#include <utility>

using namespace corvane::host;

namespace {

/// A T is made of the value.
template <class T, class Source>
CorBool append(const Operation& operation, CorArgList l, const char* name, Source value) {
    if (!mayProceedUntraced(operation, true)) {
        return FALSE;
    }
    if (!l || !name) {
        reportMisuse(operation, "an argument is NULL");
        return FALSE;
    }
    if (!known(l)) {
        reportMisuse(operation, "the list was freed before, or is not from the host");
        return FALSE;
    }
    try {
        withSecondTry([&] { l->set<T>(name, value); });
        return TRUE;
    } catch (...) {
        reportException(operation);
        return FALSE;
    }
}

} // namespace

CorArgList CorUtilArgListAlloc(void) {
    return mayProceedUntraced("CorUtilArgListAlloc", true) ? newArgumentList() : nullptr;
}

CorBool CorUtilArgListAppendFunction(CorArgList l, const char* name, CorGenericFunc f) {
    return append<CorGenericFunc>("CorUtilArgListAppendFunction", l, name, f);
}

CorBool CorUtilArgListAppendInt(CorArgList l, const char* name, int value) {
    return append<int>("CorUtilArgListAppendInt", l, name, value);
}

CorBool CorUtilArgListAppendDouble(CorArgList l, const char* name, double value) {
    return append<double>("CorUtilArgListAppendDouble", l, name, value);
}

CorBool CorUtilArgListAppendString(CorArgList l, const char* name, const char* value) {
    return append<std::string>("CorUtilArgListAppendString", value ? l : nullptr, name, value);
}

CorBool CorUtilArgListAppendIntPtr(CorArgList l, const char* name, int* result) {
    return append<int*>("CorUtilArgListAppendIntPtr", result ? l : nullptr, name, result);
}

CorBool CorUtilArgListAppendDoublePtr(CorArgList l, const char* name, double* result) {
    return append<double*>("CorUtilArgListAppendDoublePtr", result ? l : nullptr, name, result);
}

void CorUtilArgListDealloc(CorArgList* l) {
    const Operation operation("CorUtilArgListDealloc");
    if (l && mayProceedUntraced(operation, false)) {
        freeArgumentList(operation, std::exchange(*l, nullptr));
    }
}
