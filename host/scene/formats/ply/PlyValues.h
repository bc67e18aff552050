// Reads the values of a PLY file one by one.
#pragma once

#include "host/scene/formats/ply/PlyHeader.h"

#include <istream>

namespace corvane::scene {

/// Throws ReadFailure where the stream ends too early or holds no number.
class PlyValues {
public:
    PlyValues(std::istream& stream, PlyHeader::Format format)
        : m_stream(stream), m_format(format) {}

    double next(PlyHeader::Type type);

private:
    template <class Number>
    double nextBinary();

    std::istream& m_stream;
    PlyHeader::Format m_format;
};

} // namespace corvane::scene
