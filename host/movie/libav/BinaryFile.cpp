#include "host/movie/libav/BinaryFile.h"

#include "host/movie/libav/OutputContainer.h"

#include <cstdio>
#include <utility>

namespace corvane::movie {

BinaryFile::BinaryFile(LibavCheck check) : m_check(std::move(check)) {
    m_check(avio_open(&m_file, fileUrl(m_check.path()).c_str(), AVIO_FLAG_WRITE),
            "making the file");
}

BinaryFile::~BinaryFile() {
    avio_closep(&m_file);
}

void BinaryFile::write(const std::vector<std::uint8_t>& bytes) {
    avio_write(m_file, bytes.data(), static_cast<int>(bytes.size()));
    avio_flush(m_file);
    m_check(m_file->error, "writing pictures to the file");
}

void BinaryFile::rewriteBeginning(const std::vector<std::uint8_t>& bytes) {
    m_check(avio_seek(m_file, 0, SEEK_SET) < 0 ? AVERROR(EIO) : 0, "writing the file's end");
    write(bytes);
}

void BinaryFile::close() {
    m_check(avio_closep(&m_file), "closing the file");
}

} // namespace corvane::movie
