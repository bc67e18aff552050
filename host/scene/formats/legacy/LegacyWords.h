// The words, lines and arrays of a legacy VTK file.
#pragma once

#include "host/scene/mesh/FileBytes.h"
#include "host/scene/mesh/FileCheck.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace corvane::scene {

/// Something in a legacy file that only VTK understands.
struct LegacyStrange {};

/// What numbers of an array have to be where they are text: VTK goes wrong after the first that is
/// not.
struct LegacyNumber {
    bool isWhole = false;
    std::uint64_t largest = INT32_MAX; ///< whole numbers
};

/// Walks through the file as VTK's reader does, skipping values. Numbers that cannot be are thrown
/// as ReadFailure, everything that VTK may read in another way as LegacyStrange.
class LegacyWords {
public:
    explicit LegacyWords(const std::string& path) : m_bytes(path) {}

    /// Reads the lines in front of the first keyword.
    void readHeader();
    bool isText() const { return m_isText; }
    int version() const { return m_version; } ///< 42 for 4.2

    /// In small letters; empty at the end of the file.
    std::string keyword();
    /// As it is written. There must be one.
    std::string word();
    /// A count, which VTK takes for granted.
    std::uint64_t count();

    /// Values of a type that is named as in the file. Everything about them that follows too.
    void skipArray(const std::string& type, std::uint64_t tuples, std::uint64_t components);
    /// The same without a name, of so many bytes in a binary file. Nothing follows them.
    void skipValues(std::uint64_t values, std::uint64_t bytesInBinary,
                    const LegacyNumber& number = {});
    /// Whole numbers of four bytes each; the callback is given them in turn, and answers how many
    /// of the next are not worth looking at.
    void walkIntegers(std::uint64_t count, const std::function<std::uint64_t(std::int64_t)>& visit);

private:
    std::string line();
    void skipSpaces();
    void skipNumbers(std::uint64_t count, const LegacyNumber& number);
    void skipWhole(std::uint64_t largest);
    void skipReal();
    std::size_t skipDigits(std::uint64_t& value);
    void skipMetaData(std::uint64_t components);
    void skipInformation(const std::string& header);
    void endTypeLine();
    void expectBytes(std::uint64_t bytes) const;
    std::int64_t binaryInteger();

    FileBytes m_bytes;
    bool m_isText = true;
    int m_version = 0;
};

} // namespace corvane::scene
