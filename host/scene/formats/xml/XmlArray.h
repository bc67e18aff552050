// One array of values in an XML file of VTK: where they are, and some of them.
#pragma once

#include "host/scene/formats/xml/XmlHead.h"
#include "host/scene/mesh/FileBytes.h"

#include <vtkDataCompressor.h>
#include <vtkSmartPointer.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace corvane::scene {

/// How the arrays of a file are stored, by what its root says.
struct XmlStorage {
    /// Throws ReadFailure for what VTK does not know either.
    explicit XmlStorage(const XmlHead& head);

    std::optional<std::uint64_t> appendedStart;
    bool isAppendedRaw;
    bool isSwapped;       ///< numbers have the other order of bytes than this machine's
    std::size_t wordSize; ///< of the numbers that tell sizes
    vtkSmartPointer<vtkDataCompressor> compressor; ///< null: nothing is compressed
};

/// The kind of values that an attribute "type" names.
struct XmlType {
    std::string name;
    std::size_t size = 0; ///< bytes of a value, at least
    bool isSigned = false;
};
/// Nothing where VTK knows no such type.
std::optional<XmlType> xmlType(const std::string& name);

/// Finds the values and checks that they are all inside the file. What is compressed is not read
/// before it is asked for.
class XmlArray {
public:
    /// Throws ReadFailure when sizes or places cannot be. The file and the storage outlive this.
    XmlArray(FileBytes& bytes, const XmlStorage& storage, const XmlElement& element, XmlType type);

    /// Bytes of values that it can hold at most.
    std::uint64_t capacity() const { return m_capacity; }
    /// Whether the values are in the file as in memory, so that reading them cannot fail.
    bool isPlain() const { return !m_isText && !m_isEncoded && m_storage.compressor == nullptr; }
    /// One of the values, of a type of whole numbers. Nothing where it cannot be told. Throws
    /// ReadFailure when it cannot be read.
    std::optional<std::int64_t> integer(std::uint64_t index);
    /// Whether the first values are whole numbers from 0 to below the limit.
    bool areBelow(std::int64_t limit, std::uint64_t count);

private:
    void findText();
    void findPlain();
    void findCompressed();
    std::uint64_t encodedLength(std::uint64_t bytes) const;
    std::uint64_t storedBytes(std::uint64_t from) const;
    std::vector<unsigned char> stored(std::uint64_t start, std::uint64_t from, std::size_t count);
    std::vector<std::uint64_t> words(std::uint64_t from, std::size_t count);
    std::vector<unsigned char> values(std::uint64_t from, std::size_t count);
    std::vector<unsigned char> block(std::size_t index);
    std::int64_t integerFrom(const unsigned char* bytes) const;
    std::string textWord();

    FileBytes& m_bytes;
    const XmlStorage& m_storage;
    XmlType m_type;
    bool m_isText = false;
    bool m_isEncoded = false;      ///< as base 64
    std::uint64_t m_start = 0;     ///< in the file
    std::uint64_t m_end = 0;       ///< of what may belong to it
    std::uint64_t m_dataStart = 0; ///< in the file: where the values begin, behind the sizes
    std::uint64_t m_capacity = 0;
    std::uint64_t m_blockSize = 0; ///< of a whole block, not compressed
    std::uint64_t m_lastBlockSize = 0;
    std::vector<std::uint64_t> m_blockStarts; ///< compressed, and the end of the last
};

} // namespace corvane::scene
