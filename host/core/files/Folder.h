// Where a file lies.
#pragma once

#include <cstddef>
#include <filesystem>

namespace corvane::host {

/// "." for a bare name.
std::filesystem::path folderOf(const std::filesystem::path& file);

/// The most bytes that the name of a file may have there.
std::size_t longestNameIn(const std::filesystem::path& folder);

} // namespace corvane::host
