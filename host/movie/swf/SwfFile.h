// An SWF file that shows one bitmap after another.
#pragma once

#include "host/movie/libav/BinaryFile.h"
#include "host/movie/swf/SwfBitmap.h"

#include <cstdint>

namespace corvane::movie {

/// Of the SWF file format specification, version 8: each frame defines a bitmap and a rectangle
/// filled with it, puts the rectangle in the place of the one before, and shows it.
class SwfFile {
public:
    /// The size is in pixels, 1 to 65535; framesPer256Seconds, from 1 to 65535, is the frame rate
    /// in steps of 1/256. Makes the file. Throws HostError.
    SwfFile(int width, int height, unsigned framesPer256Seconds, const LibavCheck& check);

    /// Throws HostError, also when the file would have more pictures or bytes than its fields can
    /// count.
    void add(const SwfBitmap& bitmap);
    /// Throws HostError.
    void finish();

    unsigned frames() const { return m_frames; }

private:
    std::vector<std::uint8_t> header() const;
    void append(const std::vector<std::uint8_t>& bytes);

    LibavCheck m_check;
    int m_width;
    int m_height;
    unsigned m_rate;
    unsigned m_frames = 0;
    std::uint64_t m_size = 0; ///< bytes
    BinaryFile m_file;
};

} // namespace corvane::movie
