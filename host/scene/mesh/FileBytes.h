// The bytes of a file, for those who look at it before a library does.
#pragma once

#include "host/core/process/Descriptor.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace corvane::scene {

/// Reads through a buffer, not through mapped memory: that would raise a signal where another
/// program shortens the file.
class FileBytes {
public:
    static constexpr int end = -1;

    /// Throws ReadFailure when the file cannot be opened.
    explicit FileBytes(const std::string& path);

    std::uint64_t size() const { return m_size; }
    std::uint64_t position() const { return m_bufferStart + m_at; }
    std::uint64_t left() const { return m_size > position() ? m_size - position() : 0; }
    /// Anywhere, also behind the end.
    void seek(std::uint64_t position);

    int peek() { return m_at < m_buffered || fill() ? m_buffer[m_at] : end; }
    int next() {
        const int byte = peek();
        m_at += byte != end ? 1 : 0;
        return byte;
    }
    /// False when the file ends before.
    bool read(void* bytes, std::size_t count);
    /// The bytes up to the next line, without the mark between them. False at the end.
    bool readLine(std::string& line);
    /// To the next such byte, which is not read, or to the end; false then.
    bool skipTo(char wanted);

private:
    bool fill();

    host::Descriptor m_file;
    std::uint64_t m_size = 0;
    std::vector<unsigned char> m_buffer;
    std::uint64_t m_bufferStart = 0; ///< its place in the file
    std::size_t m_buffered = 0;
    std::size_t m_at = 0;
};

} // namespace corvane::scene
