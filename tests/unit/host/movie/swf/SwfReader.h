// The structure of SWF files, read after their specification.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace corvane::movie_test {

struct SwfTag {
    unsigned code = 0;
    std::vector<std::uint8_t> body;
};

struct SwfContent {
    std::string signature; ///< of three letters
    unsigned version = 0;
    std::uint32_t lengthSaid = 0; ///< bytes
    std::size_t length = 0;       ///< bytes
    std::vector<long> stage;      ///< left, right, top, bottom in twips
    unsigned rate = 0;            ///< frames per 256 seconds
    unsigned frames = 0;          ///< as the header says
    std::vector<SwfTag> tags;
};

/// Reads fields from the highest bit of each byte.
class SwfFields {
public:
    explicit SwfFields(const std::vector<std::uint8_t>& bytes, std::size_t at = 0)
        : m_bytes(bytes), m_bit(8 * at) {}
    /// Throws std::out_of_range behind the end.
    unsigned long bits(unsigned count);
    long signedBits(unsigned count);
    unsigned number(unsigned bytes); ///< the lowest byte first, from the next whole byte
    std::vector<long> rectangle();
    std::size_t byte() const { return (m_bit + 7) / 8; } ///< the next whole one

private:
    const std::vector<std::uint8_t>& m_bytes;
    std::size_t m_bit;
};

/// Throws std::out_of_range when the file ends in the middle of a tag.
SwfContent readSwf(const std::string& path);

/// The corners of the outline that a DefineShape tag draws, as "x,y x,y ..." in twips.
std::string outlineOf(const SwfTag& shape);

} // namespace corvane::movie_test
