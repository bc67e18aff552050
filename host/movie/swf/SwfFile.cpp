#include "host/movie/swf/SwfFile.h"

#include "host/movie/swf/SwfBytes.h"

#include <algorithm>
#include <limits>
#include <string>

namespace corvane::movie {

namespace {

constexpr int twips = 20; // in a pixel
constexpr unsigned idsOfFrame = 2;
constexpr unsigned mostFrames = 65535 / idsOfFrame; // ids are 16-bit

namespace tags {
constexpr unsigned end = 0;
constexpr unsigned showFrame = 1;
constexpr unsigned defineShape = 2;
constexpr unsigned setBackgroundColor = 9;
constexpr unsigned placeObject2 = 26;
constexpr unsigned fileAttributes = 69;
} // namespace tags

/// The tags before the first frame.
void appendPreamble(SwfBytes& file) {
    file.tag(tags::fileAttributes, {0, 0, 0, 0}); // no scripts, no network
    file.tag(tags::setBackgroundColor, {255, 255, 255});
}

/// An axis-parallel edge, split into as many STRAIGHTEDGERECORDs as their 17-bit fields require.
void appendEdge(SwfBytes& shape, bool isVertical, int delta) {
    constexpr int longest = 65535;
    constexpr unsigned count = 17;
    while (delta != 0) {
        const int part = std::clamp(delta, -longest, longest);
        shape.bits(1, 1); // an edge
        shape.bits(1, 1); // a straight one
        shape.bits(4, count - 2);
        shape.bits(1, 0); // along an axis
        shape.bits(1, isVertical ? 1 : 0);
        shape.bits(count, static_cast<std::uint32_t>(part));
        delta -= part;
    }
}

/// The outline, in twips, filled with the first fill style.
void appendRectangle(SwfBytes& shape, int width, int height) {
    shape.bits(4, 1); // bits of a number of a fill style
    shape.bits(4, 0); // bits of a number of a line style
    shape.bits(6, 2); // a change of style: of the fill on the left side
    shape.bits(1, 1); // which is the first one
    appendEdge(shape, true, height);
    appendEdge(shape, false, width);
    appendEdge(shape, true, -height);
    appendEdge(shape, false, -width);
    shape.bits(6, 0); // the end of the records
    shape.align();
}

std::vector<std::uint8_t> rectangleOf(unsigned bitmapId, unsigned shapeId, int width, int height) {
    constexpr unsigned clippedBitmapWithoutSmoothing = 0x43;
    SwfBytes shape;
    shape.u16(shapeId);
    shape.rectangle(width * twips, height * twips);
    shape.u8(1); // fill style
    shape.u8(clippedBitmapWithoutSmoothing);
    shape.u16(bitmapId);
    shape.scaling(twips);
    shape.u8(0); // line styles
    appendRectangle(shape, width * twips, height * twips);
    return shape.bytes();
}

std::vector<std::uint8_t> placeOf(unsigned shapeId, bool isFirst) {
    constexpr unsigned hasCharacter = 2;
    constexpr unsigned replaces = 1;
    SwfBytes place;
    place.u8(isFirst ? hasCharacter : hasCharacter | replaces);
    place.u16(1); // depth
    place.u16(shapeId);
    return place.bytes();
}

} // namespace

SwfFile::SwfFile(int width, int height, unsigned framesPer256Seconds, const LibavCheck& check)
    : m_check(check), m_width(width), m_height(height), m_rate(framesPer256Seconds), m_file(check) {
    SwfBytes beginning;
    beginning.append(header());
    appendPreamble(beginning);
    append(beginning.bytes());
}

std::vector<std::uint8_t> SwfFile::header() const {
    SwfBytes header;
    header.append({'F', 'W', 'S', 8});
    header.u32(static_cast<std::uint32_t>(m_size));
    header.rectangle(m_width * twips, m_height * twips);
    header.u16(m_rate);
    header.u16(m_frames);
    return header.bytes();
}

void SwfFile::add(const SwfBitmap& bitmap) {
    if (m_frames == mostFrames) {
        m_check.fail("a Flash movie holds at most " + std::to_string(mostFrames) +
                     " pictures; choose another format");
    }
    const unsigned bitmapId = 1 + idsOfFrame * m_frames;
    const unsigned shapeId = bitmapId + 1;
    SwfBytes definition;
    definition.u16(bitmapId);
    definition.append(bitmap.data);
    SwfBytes frame;
    frame.tag(bitmap.tag, definition.bytes());
    frame.tag(tags::defineShape, rectangleOf(bitmapId, shapeId, m_width, m_height));
    frame.tag(tags::placeObject2, placeOf(shapeId, m_frames == 0));
    frame.tag(tags::showFrame, {});
    append(frame.bytes());
    ++m_frames;
}

void SwfFile::append(const std::vector<std::uint8_t>& bytes) {
    constexpr std::uint64_t spaceForTheEnd = 2;
    if (m_size + bytes.size() + spaceForTheEnd > std::numeric_limits<std::uint32_t>::max()) {
        m_check.fail("a Flash movie holds at most 4 GB; choose another format or image type");
    }
    m_file.write(bytes);
    m_size += bytes.size();
}

void SwfFile::finish() {
    SwfBytes end;
    end.tag(tags::end, {});
    m_file.write(end.bytes());
    m_size += end.bytes().size();
    m_file.rewriteBeginning(header());
    m_file.close();
}

} // namespace corvane::movie
