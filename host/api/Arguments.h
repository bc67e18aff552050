// Arguments that may be NULL.
#pragma once

#include <string>

namespace corvane::host {

inline std::string textOf(const char* text) {
    return text ? text : "";
}

/// Writes a result where the caller wants it.
template <class T>
void write(T* result, T value) {
    if (result) {
        *result = value;
    }
}

} // namespace corvane::host
