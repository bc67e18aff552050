// Opens damaged files, in processes that may die of it.
#pragma once

#include "tests/mutation/MutationSamples.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace corvane::test {

struct AttackOptions {
    std::uint64_t seed = 1;
    int count = 100;            ///< mutations of each sample
    std::filesystem::path kept; ///< the folder for inputs that bring the program down
    bool tellsRefusals = false; ///< with their numbers, on standard output
};

/// What one sample came to.
struct AttackResult {
    int opened = 0;
    int refused = 0;
    std::vector<std::string> findings; ///< a line for each input that brought the program down
};

AttackResult attack(const MutationSample& sample, const AttackOptions& options);

} // namespace corvane::test
