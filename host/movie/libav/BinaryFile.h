// A file of bytes whose writing is checked.
#pragma once

#include "host/movie/libav/LibavCheck.h"

#include <cstdint>
#include <vector>

struct AVIOContext;

namespace corvane::movie {

/// Failures are told in the words of libav's files, so that all movies fail alike. Destroying it
/// before close() closes the file and leaves it.
class BinaryFile {
public:
    /// Makes or truncates the file at the check's path. Throws HostError.
    explicit BinaryFile(LibavCheck check);
    ~BinaryFile();
    BinaryFile(const BinaryFile&) = delete;
    BinaryFile& operator=(const BinaryFile&) = delete;

    /// The bytes are in the file when this returns. Throws HostError.
    void write(const std::vector<std::uint8_t>& bytes);
    /// Writes over the first bytes of the file. Throws HostError.
    void rewriteBeginning(const std::vector<std::uint8_t>& bytes);
    /// Throws HostError when a byte may be missing.
    void close();

private:
    LibavCheck m_check;
    AVIOContext* m_file = nullptr; ///< owned
};

} // namespace corvane::movie
