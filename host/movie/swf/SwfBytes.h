// Bytes of an SWF file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvane::movie {

/// After the chapter "Basic data types" of the SWF file format specification: whole numbers begin
/// with their lowest byte, bit fields with their highest bit, and what follows bit fields begins
/// with a new byte.
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
    /// A MATRIX that scales alike in both directions.
    void scaling(int factor);
    /// Fills the last byte of bit fields with zeros.
    void align() { m_freeBits = 0; }

    /// Appends a tag with its header.
    void tag(unsigned code, const std::vector<std::uint8_t>& body);

    const std::vector<std::uint8_t>& bytes() const { return m_bytes; }

private:
    std::vector<std::uint8_t> m_bytes;
    unsigned m_freeBits = 0; ///< of the last byte
};

/// Bits of a signed field that the number, which is not negative, needs.
unsigned signedBits(int number);

} // namespace corvane::movie
