// What the user is told about files that cannot be read.
#pragma once

#include "host/core/base/HostError.h"

#include <exception>
#include <stdexcept>
#include <string>

namespace corvane::scene {

/// Why a file cannot be read, as part of a sentence: "it holds no mesh". Readers throw it, and
/// withReadErrors() makes the sentence.
class ReadFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// "path cannot be read: reason."
host::HostError readError(const std::string& path, const std::string& reason);

/// The readError for whatever reading the file has thrown. A HostError stays as it is.
host::HostError asReadError(const std::string& path, const std::exception& error);

/// Throws a readError when the path is not that of a readable file with something in it.
void checkReadable(const std::string& path);

/// The result of the work on the file; every exception in it becomes a readError.
template <class Work>
auto withReadErrors(const std::string& path, const Work& work) {
    try {
        return work();
    } catch (const std::exception& error) {
        throw asReadError(path, error);
    }
}

} // namespace corvane::scene
