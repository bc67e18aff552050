// Another chance for what finds no memory.
#pragma once

#include <new>

namespace corvane::host {

/// Does the work, and once more where it finds no memory: what was to be put back after a failure
/// that has freed some is put back then. Work that throws must not have changed anything.
template <class Work>
auto withSecondTry(const Work& work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return work();
    }
}

} // namespace corvane::host
