#include "host/scene/formats/ply/PlyValues.h"

#include "host/scene/mesh/ReadError.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace corvane::scene {

namespace {

[[noreturn]] void fail() {
    throw ReadFailure("the file ends before its data do, or holds what is no number");
}

} // namespace

template <class Number>
double PlyValues::nextBinary() {
    std::array<char, sizeof(Number)> bytes{};
    if (!m_stream.read(bytes.data(), bytes.size())) {
        fail();
    }
    const bool isLittle = m_format == PlyHeader::Format::LittleEndian;
    if (isLittle != (std::endian::native == std::endian::little)) {
        std::reverse(bytes.begin(), bytes.end());
    }
    return static_cast<double>(std::bit_cast<Number>(bytes));
}

double PlyValues::next(PlyHeader::Type type) {
    if (m_format == PlyHeader::Format::Ascii) {
        double value = 0.0;
        if (!(m_stream >> value)) {
            fail();
        }
        return value;
    }
    using Type = PlyHeader::Type;
    switch (type) {
    case Type::Int8:
        return nextBinary<std::int8_t>();
    case Type::Uint8:
        return nextBinary<std::uint8_t>();
    case Type::Int16:
        return nextBinary<std::int16_t>();
    case Type::Uint16:
        return nextBinary<std::uint16_t>();
    case Type::Int32:
        return nextBinary<std::int32_t>();
    case Type::Uint32:
        return nextBinary<std::uint32_t>();
    case Type::Float32:
        return nextBinary<float>();
    case Type::Float64:
        return nextBinary<double>();
    }
    fail();
}

} // namespace corvane::scene
