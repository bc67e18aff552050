// What a CorMemoryHost points to, and the frame of each function over it.
#pragma once

#include "host/memory/MemoryHost.h"
#include "hostapi/testing/CorMemoryHost.h"

#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

struct CorMemoryHost_s {
    explicit CorMemoryHost_s(bool hasWindows);

    std::unique_ptr<corvane::memory::MemoryHost> host;
    std::string error;           ///< about the last call that failed
    std::string answer;          ///< the last text that was given away
    corvane::host::DataSet data; ///< that waits to be loaded
};

namespace corvane::memory {

/// The result of work(handle), which may throw; then its text is kept as the error, and failure is
/// the answer.
template <class Result, class Work>
Result answer(CorMemoryHost handle, Result failure, const Work& work) {
    if (handle == nullptr) {
        return failure;
    }
    try {
        return work(*handle);
    } catch (const std::exception& error) {
        handle->error = error.what();
        return failure;
    }
}

/// The same for functions that do something.
template <class Work>
CorBool done(CorMemoryHost handle, const Work& work) {
    return answer(handle, FALSE, [&](CorMemoryHost_s& it) {
        work(it);
        return TRUE;
    });
}

/// The same for functions that answer a text.
template <class Work>
const char* text(CorMemoryHost handle, const Work& work) {
    return answer(handle, "", [&](CorMemoryHost_s& it) {
        it.answer = work(it);
        return it.answer.c_str();
    });
}

/// Throws std::invalid_argument.
template <class T>
T* required(T* pointer, const char* name) {
    if (pointer == nullptr) {
        throw std::invalid_argument(std::string(name) + " is NULL.");
    }
    return pointer;
}

/// From 1; throws std::out_of_range.
template <class T>
const T& numbered(const std::vector<T>& things, long number) {
    if (number < 1 || static_cast<std::size_t>(number) > things.size()) {
        throw std::out_of_range("There is no number " + std::to_string(number) + " of " +
                                std::to_string(things.size()) + ".");
    }
    return things[static_cast<std::size_t>(number - 1)];
}

} // namespace corvane::memory
