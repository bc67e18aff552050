// Options of encoders and containers, by libav's own names.
#pragma once

#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavHandles.h"

#include <string>
#include <utility>
#include <vector>

namespace corvane::movie {

using LibavOptions = std::vector<std::pair<std::string, std::string>>;

/// Options in the form that libav takes them from while it opens something.
class LibavDictionary {
public:
    LibavDictionary(const LibavOptions& options, const LibavCheck& check);
    ~LibavDictionary() { av_dict_free(&m_dictionary); }
    LibavDictionary(const LibavDictionary&) = delete;
    LibavDictionary& operator=(const LibavDictionary&) = delete;

    AVDictionary** get() { return &m_dictionary; }
    /// libav removes the options that it used; one that is left would have had no effect. Throws.
    void requireAllUsed(const LibavCheck& check) const;

private:
    AVDictionary* m_dictionary = nullptr;
};

} // namespace corvane::movie
