// A binary file that reports every failed write.
#pragma once

#include "host/movie/libav/LibavCheck.h"

#include <cstdint>
#include <vector>

struct AVIOContext;

namespace corvane::movie {

/// Goes through libav's file layer, so that error messages read alike for all formats. Destroying
/// it before close() closes the file but does not remove it.
class BinaryFile {
public:
    /// Creates or truncates the file at the check's path. Throws HostError.
    explicit BinaryFile(LibavCheck check);
    ~BinaryFile();
    BinaryFile(const BinaryFile&) = delete;
    BinaryFile& operator=(const BinaryFile&) = delete;

    /// Flushes the bytes to the file before returning. Throws HostError.
    void write(const std::vector<std::uint8_t>& bytes);
    /// Overwrites the first bytes of the file. Throws HostError.
    void rewriteBeginning(const std::vector<std::uint8_t>& bytes);
    /// Throws HostError unless every byte was written.
    void close();

private:
    LibavCheck m_check;
    AVIOContext* m_file = nullptr; ///< owned
};

} // namespace corvane::movie
