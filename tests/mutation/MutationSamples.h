// Small sound data files of every kind that a library reads.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace corvane::test {

struct MutationSample {
    std::string name;
    /// Writes the sample into the empty folder and answers the file to open.
    std::function<std::string(const std::filesystem::path& folder)> write;
};

std::vector<MutationSample> mutationSamples();

} // namespace corvane::test
