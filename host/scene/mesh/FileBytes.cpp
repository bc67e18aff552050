#include "host/scene/mesh/FileBytes.h"

#include "host/scene/mesh/ReadError.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvane::scene {

namespace {

constexpr std::size_t bufferSize = std::size_t{1} << 16U;

} // namespace

FileBytes::FileBytes(const std::string& path)
    : m_file(open(path.c_str(), O_RDONLY | O_CLOEXEC)), m_buffer(bufferSize) {
    struct stat status {};
    if (m_file.get() < 0 || fstat(m_file.get(), &status) != 0) {
        throw ReadFailure(path + " cannot be opened: " + std::strerror(errno));
    }
    m_size = static_cast<std::uint64_t>(status.st_size);
}

void FileBytes::seek(std::uint64_t position) {
    if (position >= m_bufferStart && position <= m_bufferStart + m_buffered) {
        m_at = static_cast<std::size_t>(position - m_bufferStart);
        return;
    }
    m_bufferStart = position;
    m_buffered = 0;
    m_at = 0;
}

bool FileBytes::read(void* bytes, std::size_t count) {
    auto* to = static_cast<unsigned char*>(bytes);
    while (count > 0) {
        if (peek() == end) {
            return false;
        }
        const std::size_t part = std::min(count, m_buffered - m_at);
        std::memcpy(to, m_buffer.data() + m_at, part);
        m_at += part;
        to += part;
        count -= part;
    }
    return true;
}

bool FileBytes::readLine(std::string& line) {
    line.clear();
    if (peek() == end) {
        return false;
    }
    while (peek() != end) {
        const auto* const start = m_buffer.data() + m_at;
        const auto* const found =
            static_cast<const unsigned char*>(std::memchr(start, '\n', m_buffered - m_at));
        const std::size_t length =
            found != nullptr ? static_cast<std::size_t>(found - start) : m_buffered - m_at;
        line.append(reinterpret_cast<const char*>(start), length);
        m_at += length;
        if (found != nullptr) {
            ++m_at;
            return true;
        }
    }
    return true;
}

bool FileBytes::skipTo(char wanted) {
    while (peek() != end) {
        const void* const found = std::memchr(m_buffer.data() + m_at, wanted, m_buffered - m_at);
        if (found != nullptr) {
            m_at = static_cast<std::size_t>(static_cast<const unsigned char*>(found) -
                                            m_buffer.data());
            return true;
        }
        m_at = m_buffered;
    }
    return false;
}

bool FileBytes::fill() {
    m_bufferStart += m_at;
    m_at = 0;
    m_buffered = 0;
    if (m_bufferStart >= m_size) {
        return false;
    }
    const ssize_t count =
        pread(m_file.get(), m_buffer.data(), m_buffer.size(), static_cast<off_t>(m_bufferStart));
    m_buffered = count > 0 ? static_cast<std::size_t>(count) : 0;
    return m_buffered > 0;
}

} // namespace corvane::scene
