#include "host/movie/swf/SwfBytes.h"

#include <algorithm>

namespace corvane::movie {

void SwfBytes::u8(unsigned value) {
    align();
    m_bytes.push_back(static_cast<std::uint8_t>(value & 0xFFU));
}

void SwfBytes::u16(unsigned value) {
    u8(value);
    u8(value >> 8U);
}

void SwfBytes::u32(std::uint32_t value) {
    u16(value);
    u16(value >> 16U);
}

void SwfBytes::append(const std::uint8_t* bytes, std::size_t count) {
    align();
    m_bytes.insert(m_bytes.end(), bytes, bytes + count);
}

void SwfBytes::append(const std::vector<std::uint8_t>& bytes) {
    append(bytes.data(), bytes.size());
}

void SwfBytes::bits(unsigned count, std::uint32_t value) {
    while (count-- > 0) {
        if (m_freeBits == 0) {
            m_bytes.push_back(0);
            m_freeBits = 8;
        }
        --m_freeBits;
        const unsigned bit = (value >> count) & 1U;
        m_bytes.back() = static_cast<std::uint8_t>(m_bytes.back() | (bit << m_freeBits));
    }
}

void SwfBytes::rectangle(int width, int height) {
    align();
    const unsigned count = signedBits(std::max(width, height));
    bits(5, count);
    bits(count, 0); // left
    bits(count, static_cast<std::uint32_t>(width));
    bits(count, 0); // top
    bits(count, static_cast<std::uint32_t>(height));
    align();
}

void SwfBytes::scaling(int factor) {
    align();
    const int fixedPoint = factor * 65536; // 16.16
    const unsigned count = signedBits(fixedPoint);
    bits(1, 1); // has a scale
    bits(5, count);
    bits(count, static_cast<std::uint32_t>(fixedPoint));
    bits(count, static_cast<std::uint32_t>(fixedPoint));
    bits(1, 0); // has no rotation
    bits(5, 0); // a translation of no bits: none
    align();
}

void SwfBytes::tag(unsigned code, const std::vector<std::uint8_t>& body) {
    // The long header is valid for every tag, and players require it for bitmaps.
    constexpr unsigned longHeader = 63;
    u16(code << 6U | (body.empty() ? 0U : longHeader));
    if (body.empty()) {
        return;
    }
    u32(static_cast<std::uint32_t>(body.size()));
    append(body);
}

unsigned signedBits(int number) {
    unsigned count = 1;
    for (auto rest = static_cast<unsigned>(number); rest != 0; rest >>= 1U) {
        ++count;
    }
    return count;
}

} // namespace corvane::movie
