// The last step of an MP4 movie.
#pragma once

#include <string>

namespace corvane::movie {

/// Rearranges a complete fragmented MP4 file into one with a single index at its beginning, which
/// every player and slide program can seek in; the compressed pictures are copied as they are. The
/// new file is written beside the old one and takes its place at the end. When that fails (such as
/// for want of disk space) the old file stays, which is complete too, and the result is false.
bool rearrangeAsPlainMp4(const std::string& path);

} // namespace corvane::movie
