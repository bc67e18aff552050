// Writes the basic data types of SWF files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvane::movie {

/// Integers are little-endian, bit fields start with their most significant bit, and whatever
/// follows bit fields starts at a byte boundary.
class SwfBytes {
public:
    void u8(unsigned value);
    void u16(unsigned value);
    void u32(std::uint32_t value);
    void append(const std::uint8_t* bytes, std::size_t count);
    void append(const std::vector<std::uint8_t>& bytes);

    /// An unsigned field of up to 32 bits.
    void bits(unsigned count, std::uint32_t value);
    /// A RECT from the origin, in twips (1/20 pixel).
    void rectangle(int width, int height);
    /// A MATRIX that scales equally in both directions.
    void scaling(int factor);
    /// Pads bit fields with zeros up to a byte boundary.
    void align() { m_freeBits = 0; }

    /// Appends a tag with its header.
    void tag(unsigned code, const std::vector<std::uint8_t>& body);

    const std::vector<std::uint8_t>& bytes() const { return m_bytes; }

private:
    std::vector<std::uint8_t> m_bytes;
    unsigned m_freeBits = 0; ///< of the last byte
};

/// The size in bits of a signed field for a number that is not negative.
unsigned signedBits(int number);

} // namespace corvane::movie
