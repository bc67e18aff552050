// Rewrites a fragmented MP4 file as a plain one.
#pragma once

#include "host/core/files/ScratchFile.h"

#include <memory>
#include <string>

namespace corvane::movie {

/// Remuxes a complete fragmented MP4 file into one with a single index at its beginning, in which
/// every player and presentation program can seek; the video is not encoded again. The new file is
/// written beside the old one and then replaces it; it stays locked as long as the result lives. If
/// that fails, for example because the disk is full, the old file, which is complete too, is kept
/// and the result is null.
std::unique_ptr<host::ScratchFile> rearrangeAsPlainMp4(const std::string& path);

} // namespace corvane::movie
