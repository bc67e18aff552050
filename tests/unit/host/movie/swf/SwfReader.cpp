// The structure of SWF files, read after their specification.
#include "tests/unit/host/movie/swf/SwfReader.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace corvane::movie_test {

unsigned long SwfFields::bits(unsigned count) {
    unsigned long value = 0;
    for (; count > 0; --count, ++m_bit) {
        value = value << 1U | (m_bytes.at(m_bit / 8) >> (7 - m_bit % 8) & 1U);
    }
    return value;
}

long SwfFields::signedBits(unsigned count) {
    const auto value = static_cast<long>(bits(count));
    const long sign = 1L << (count - 1);
    return value >= sign ? value - 2 * sign : value;
}

unsigned SwfFields::number(unsigned bytes) {
    m_bit = 8 * byte();
    unsigned value = 0;
    for (unsigned i = 0; i < bytes; ++i) {
        value |= static_cast<unsigned>(bits(8)) << (8 * i);
    }
    return value;
}

std::vector<long> SwfFields::rectangle() {
    m_bit = 8 * byte();
    const auto count = static_cast<unsigned>(bits(5));
    std::vector<long> sides;
    for (int side = 0; side < 4; ++side) {
        sides.push_back(signedBits(count));
    }
    return sides;
}

SwfContent readSwf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(file), {}};
    SwfContent content;
    content.length = bytes.size();
    SwfFields fields(bytes);
    for (int i = 0; i < 3; ++i) {
        content.signature += static_cast<char>(fields.number(1));
    }
    content.version = fields.number(1);
    content.lengthSaid = fields.number(4);
    content.stage = fields.rectangle();
    content.rate = fields.number(2);
    content.frames = fields.number(2);
    while (fields.byte() < bytes.size()) {
        const unsigned codeAndLength = fields.number(2);
        unsigned length = codeAndLength & 63U;
        if (length == 63) {
            length = fields.number(4);
        }
        SwfTag& tag = content.tags.emplace_back();
        tag.code = codeAndLength >> 6U;
        for (unsigned i = 0; i < length; ++i) {
            tag.body.push_back(static_cast<std::uint8_t>(fields.number(1)));
        }
    }
    return content;
}

std::string outlineOf(const SwfTag& shape) {
    SwfFields fields(shape.body);
    fields.number(2);
    fields.rectangle();
    fields.number(4); // one fill style, its kind, its bitmap
    fields.bits(1);
    const auto scaleBits = static_cast<unsigned>(fields.bits(5));
    fields.bits(2 * scaleBits + 6);
    fields.number(1); // no line styles
    fields.bits(8);   // a bit for the number of a fill style, none for that of a line style
    if (fields.bits(6) != 2 || fields.bits(1) != 1) {
        throw std::runtime_error("the shape does not begin with its fill");
    }
    long place[] = {0, 0};
    std::string outline = "0,0";
    while (fields.bits(1) == 1) {
        if (fields.bits(1) != 1) {
            throw std::runtime_error("an edge is not straight");
        }
        const auto count = static_cast<unsigned>(fields.bits(4)) + 2;
        if (fields.bits(1) != 0) {
            throw std::runtime_error("an edge is oblique");
        }
        const auto direction = fields.bits(1);
        place[direction] += fields.signedBits(count);
        outline += " " + std::to_string(place[0]) + "," + std::to_string(place[1]);
    }
    if (fields.bits(5) != 0 || fields.byte() != shape.body.size()) {
        throw std::runtime_error("the shape does not end with its outline");
    }
    return outline;
}

} // namespace corvane::movie_test
