// Named, typed arguments of a host operation, freed with the object.
#pragma once

#include "hostapi/CorArgList.h"

#include <string>

namespace corvane::toolbox {

// Owns a C argument list. Appending a name again replaces its value. Nothing here throws or reports
// an error: when the host has no memory for the list, handle() is NULL and appending does nothing.
class ArgList {
public:
    ArgList() : m_list(CorUtilArgListAlloc()) {}
    ~ArgList() { freeList(); }
    ArgList(const ArgList&) = delete;
    ArgList& operator=(const ArgList&) = delete;

    void appendInt(const char* name, int v) {
        if (canAppend(name))
            CorUtilArgListAppendInt(m_list, name, v);
    }
    void appendDouble(const char* name, double v) {
        if (canAppend(name))
            CorUtilArgListAppendDouble(m_list, name, v);
    }
    // The results behind v must live until the operation that takes the list has returned.
    void appendDoublePtr(const char* name, double* v) {
        if (canAppend(name))
            CorUtilArgListAppendDoublePtr(m_list, name, v);
    }
    void appendIntPtr(const char* name, int* v) {
        if (canAppend(name))
            CorUtilArgListAppendIntPtr(m_list, name, v);
    }
    void appendString(const char* name, const std::string& v) { appendString(name, v.c_str()); }
    void appendString(const char* name, const char* v) {
        if (canAppend(name))
            CorUtilArgListAppendString(m_list, name, v);
    }
    void appendFunction(const char* name, CorGenericFunc f) {
        if (canAppend(name))
            CorUtilArgListAppendFunction(m_list, name, f);
    }

    // Drops all entries. The handle changes.
    void clear() {
        freeList();
        m_list = CorUtilArgListAlloc();
    }

    // The C list, owned by this object and valid until clear() or destruction.
    CorArgList handle() const { return m_list; }

private:
    bool canAppend(const char* name) const { return m_list && name; }

    void freeList() {
        if (m_list)
            CorUtilArgListDealloc(&m_list);
    }

    CorArgList m_list;
};

} // namespace corvane::toolbox
