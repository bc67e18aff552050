// Options of encoders and containers, under libav's names.
#pragma once

#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavHandles.h"

#include <string>
#include <utility>
#include <vector>

namespace corvane::movie {

using LibavOptions = std::vector<std::pair<std::string, std::string>>;

/// Options in the form in which libav's open functions consume them.
class LibavDictionary {
public:
    LibavDictionary(const LibavOptions& options, const LibavCheck& check);
    ~LibavDictionary() { av_dict_free(&m_dictionary); }
    LibavDictionary(const LibavDictionary&) = delete;
    LibavDictionary& operator=(const LibavDictionary&) = delete;

    AVDictionary** get() { return &m_dictionary; }
    /// Throws HostError if an option had no effect: libav removes those that it uses.
    void requireAllUsed(const LibavCheck& check) const;

private:
    AVDictionary* m_dictionary = nullptr;
};

} // namespace corvane::movie
