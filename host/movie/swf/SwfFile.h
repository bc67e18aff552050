// An SWF file that plays a sequence of bitmaps.
#pragma once

#include "host/movie/libav/BinaryFile.h"
#include "host/movie/swf/SwfBitmap.h"

#include <cstdint>

namespace corvane::movie {

/// Version 8 of the format. Each frame defines a bitmap and a rectangle filled with it, and shows
/// the rectangle instead of the previous one.
class SwfFile {
public:
    /// The size is in pixels, 1 to 65535; framesPer256Seconds, from 1 to 65535, is the frame rate
    /// in steps of 1/256. Creates the file. Throws HostError.
    SwfFile(int width, int height, unsigned framesPer256Seconds, const LibavCheck& check);

    /// Throws HostError, also when the pictures or bytes would exceed what the format can count.
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
