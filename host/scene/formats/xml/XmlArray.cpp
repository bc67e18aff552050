#include "host/scene/formats/xml/XmlArray.h"

#include "host/core/base/Text.h"
#include "host/scene/mesh/FileCheck.h"
#include "host/scene/vtk/VtkMessages.h"

#include <vtkBase64Utilities.h>
#include <vtkLZ4DataCompressor.h>
#include <vtkLZMADataCompressor.h>
#include <vtkZLibDataCompressor.h>

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace corvane::scene {

namespace {

/// More than the best of the compressors makes of zeros.
constexpr std::uint64_t bestCompression = 1U << 15U;

vtkSmartPointer<vtkDataCompressor> compressorOf(const std::string& name) {
    if (name.empty()) {
        return nullptr;
    }
    if (name == "vtkZLibDataCompressor") {
        return vtkSmartPointer<vtkZLibDataCompressor>::New();
    }
    if (name == "vtkLZ4DataCompressor") {
        return vtkSmartPointer<vtkLZ4DataCompressor>::New();
    }
    if (name == "vtkLZMADataCompressor") {
        return vtkSmartPointer<vtkLZMADataCompressor>::New();
    }
    refuse("its data are compressed in an unknown way, \"" + name + "\"");
}

std::uint64_t numberFrom(const unsigned char* bytes, std::size_t size, bool isSwapped) {
    std::array<unsigned char, 8> ordered{};
    std::copy_n(bytes, size, ordered.begin());
    if (isSwapped) {
        std::reverse(ordered.begin(), ordered.begin() + static_cast<std::ptrdiff_t>(size));
    }
    static_assert(std::endian::native == std::endian::little);
    return std::bit_cast<std::uint64_t>(ordered);
}

} // namespace

XmlStorage::XmlStorage(const XmlHead& head)
    : appendedStart(head.appendedStart),
      isAppendedRaw(head.isAppendedRaw),
      isSwapped(head.root.attribute("byte_order") == "BigEndian"),
      wordSize(head.root.attribute("header_type") == "UInt64" ? 8 : 4),
      compressor(compressorOf(head.root.attribute("compressor"))) {}

std::optional<XmlType> xmlType(const std::string& name) {
    static const std::array<XmlType, 12> types{{{"Int8", 1, true},
                                                {"UInt8", 1, false},
                                                {"Int16", 2, true},
                                                {"UInt16", 2, false},
                                                {"Int32", 4, true},
                                                {"UInt32", 4, false},
                                                {"Int64", 8, true},
                                                {"UInt64", 8, false},
                                                {"Float32", 4, true},
                                                {"Float64", 8, true},
                                                {"String", 1, false},
                                                {"Bit", 1, false}}};
    const auto* const found =
        std::ranges::find_if(types, [&](const XmlType& type) { return type.name == name; });
    return found == types.end() ? std::nullopt : std::optional(*found);
}

XmlArray::XmlArray(FileBytes& bytes, const XmlStorage& storage, const XmlElement& element,
                   XmlType type)
    : m_bytes(bytes), m_storage(storage), m_type(std::move(type)) {
    if (element.has("offset")) {
        const auto offset = element.number<std::uint64_t>("offset");
        if (!storage.appendedStart || !offset || *offset > bytes.size() - *storage.appendedStart) {
            refuse("an array begins behind the end of the file");
        }
        m_start = *storage.appendedStart + *offset;
        m_end = bytes.size();
        m_isEncoded = !storage.isAppendedRaw;
    } else {
        m_start = element.dataStart;
        m_end = element.dataEnd;
        m_isText = element.attribute("format") != "binary";
        m_isEncoded = true;
    }
    if (m_isText) {
        findText();
    } else if (storage.compressor != nullptr) {
        findCompressed();
    } else {
        findPlain();
    }
}

void XmlArray::findText() {
    // A digit and a space for each value.
    m_capacity = cappedProduct((m_end - m_start + 1) / 2, m_type.size);
}

void XmlArray::findPlain() {
    m_dataStart = m_start;
    if (storedBytes(m_start) < m_storage.wordSize) { // as a piece without points may be written
        return;
    }
    m_capacity = std::min(words(0, 1).front(), storedBytes(m_start) - m_storage.wordSize);
}

void XmlArray::findCompressed() {
    constexpr std::size_t fixedWords = 3;
    const std::size_t wordSize = m_storage.wordSize;
    if (storedBytes(m_start) < fixedWords * wordSize) {
        return;
    }
    const auto fixed = words(0, fixedWords);
    const std::uint64_t blocks = fixed[0];
    m_blockSize = fixed[1];
    m_lastBlockSize = fixed[2] == 0 ? m_blockSize : fixed[2];
    if (blocks > storedBytes(m_start) / wordSize || (blocks > 0 && m_blockSize == 0) ||
        m_lastBlockSize > m_blockSize) {
        refuse("an array tells sizes of its blocks that cannot be");
    }
    const auto sizes = words(fixedWords * wordSize, blocks);
    m_dataStart = m_start + encodedLength((fixedWords + blocks) * wordSize);
    m_blockStarts.push_back(0);
    for (const std::uint64_t size : sizes) {
        const std::uint64_t start = m_blockStarts.back();
        if (size > storedBytes(m_dataStart) || start + size > storedBytes(m_dataStart)) {
            refuse("an array ends behind the end of the file");
        }
        m_blockStarts.push_back(start + size);
    }
    if (blocks > 0) {
        m_capacity = cappedProduct(blocks - 1, m_blockSize) + m_lastBlockSize;
        if (m_blockSize > cappedProduct(m_blockStarts.back() + 1, bestCompression) ||
            m_capacity > cappedProduct(m_blockStarts.back() + 1, bestCompression)) {
            refuse("an array tells sizes of its blocks that cannot be");
        }
    }
}

/// What bytes take in the file.
std::uint64_t XmlArray::encodedLength(std::uint64_t bytes) const {
    return m_isEncoded ? (bytes + 2) / 3 * 4 : bytes;
}

/// The bytes that can be between this place of the file and the end of the array.
std::uint64_t XmlArray::storedBytes(std::uint64_t from) const {
    const std::uint64_t length = m_end > from ? m_end - from : 0;
    return m_isEncoded ? length / 4 * 3 : length;
}

/// Bytes as they were before they were encoded; counted from a place in the file where encoding
/// began.
std::vector<unsigned char> XmlArray::stored(std::uint64_t start, std::uint64_t from,
                                            std::size_t count) {
    if (from > storedBytes(start) || count > storedBytes(start) - from) {
        refuse("an array ends behind the end of the file");
    }
    if (!m_isEncoded) {
        std::vector<unsigned char> plain(count);
        m_bytes.seek(start + from);
        if (!m_bytes.read(plain.data(), count)) {
            refuse("an array ends behind the end of the file");
        }
        return plain;
    }
    const std::uint64_t skipped = from % 3;
    std::vector<unsigned char> text(encodedLength(skipped + count));
    std::vector<unsigned char> plain(text.size() / 4 * 3);
    m_bytes.seek(start + from / 3 * 4);
    if (!m_bytes.read(text.data(), text.size())) {
        refuse("an array ends behind the end of the file");
    }
    for (std::size_t i = 0; i < text.size() / 4; ++i) {
        const unsigned char* const in = text.data() + 4 * i;
        unsigned char* const out = plain.data() + 3 * i;
        vtkBase64Utilities::DecodeTriplet(in[0], in[1], in[2], in[3], out, out + 1, out + 2);
    }
    plain.erase(plain.begin(), plain.begin() + static_cast<std::ptrdiff_t>(skipped));
    plain.resize(count);
    return plain;
}

std::vector<std::uint64_t> XmlArray::words(std::uint64_t from, std::size_t count) {
    const std::size_t size = m_storage.wordSize;
    const auto bytes = stored(m_start, from, count * size);
    std::vector<std::uint64_t> words;
    for (std::size_t i = 0; i < count; ++i) {
        words.push_back(numberFrom(bytes.data() + i * size, size, m_storage.isSwapped));
    }
    return words;
}

/// Bytes of the values; within the capacity.
std::vector<unsigned char> XmlArray::values(std::uint64_t from, std::size_t count) {
    if (m_storage.compressor == nullptr) {
        return stored(m_start, m_storage.wordSize + from, count);
    }
    std::vector<unsigned char> found;
    for (std::uint64_t index = from / m_blockSize; found.size() < count; ++index) {
        const auto part = block(index);
        const std::uint64_t skipped = found.empty() ? from % m_blockSize : 0;
        const auto wanted = std::min<std::uint64_t>(count - found.size(), part.size() - skipped);
        const auto begin = part.begin() + static_cast<std::ptrdiff_t>(skipped);
        found.insert(found.end(), begin, begin + static_cast<std::ptrdiff_t>(wanted));
    }
    return found;
}

std::vector<unsigned char> XmlArray::block(std::size_t index) {
    const auto packed = stored(m_dataStart, m_blockStarts.at(index),
                               m_blockStarts.at(index + 1) - m_blockStarts.at(index));
    std::vector<unsigned char> plain(index + 2 == m_blockStarts.size() ? m_lastBlockSize
                                                                       : m_blockSize);
    const VtkMessages messages;
    const std::size_t size =
        m_storage.compressor->Uncompress(packed.data(), packed.size(), plain.data(), plain.size());
    if (size == 0 || messages.hasErrors()) {
        refuse("its compressed data cannot be restored");
    }
    return plain;
}

std::int64_t XmlArray::integerFrom(const unsigned char* bytes) const {
    const std::uint64_t number = numberFrom(bytes, m_type.size, m_storage.isSwapped);
    const auto unused = static_cast<int>(64 - 8 * m_type.size);
    return m_type.isSigned ? static_cast<std::int64_t>(number << unused) >> unused
                           : static_cast<std::int64_t>(number);
}

std::optional<std::int64_t> XmlArray::integer(std::uint64_t index) {
    if (m_type.name.find("Int") == std::string::npos) {
        return std::nullopt;
    }
    if (!m_isText) {
        return integerFrom(values(index * m_type.size, m_type.size).data());
    }
    m_bytes.seek(m_start);
    for (; index > 0; --index) {
        textWord();
    }
    return host::parsedNumber<std::int64_t>(textWord());
}

bool XmlArray::areBelow(std::int64_t limit, std::uint64_t count) {
    const auto isBelow = [limit](std::int64_t number) { return number >= 0 && number < limit; };
    if (m_type.name.find("Int") == std::string::npos) {
        return false;
    }
    if (m_isText) {
        m_bytes.seek(m_start);
        bool areBelow = true;
        for (; count > 0 && areBelow; --count) {
            areBelow = isBelow(host::parsedNumber<std::int64_t>(textWord()).value_or(-1));
        }
        return areBelow;
    }
    const auto bytes = values(0, cappedProduct(count, m_type.size));
    for (std::size_t at = 0; at < bytes.size(); at += m_type.size) {
        if (!isBelow(integerFrom(bytes.data() + at))) {
            return false;
        }
    }
    return true;
}

std::string XmlArray::textWord() {
    std::string word;
    while (m_bytes.position() < m_end && m_bytes.peek() <= ' ') {
        m_bytes.next();
    }
    while (m_bytes.position() < m_end && m_bytes.peek() > ' ') {
        word.push_back(static_cast<char>(m_bytes.next()));
    }
    if (word.empty()) {
        refuse("an array has fewer values than it should");
    }
    return word;
}

} // namespace corvane::scene
