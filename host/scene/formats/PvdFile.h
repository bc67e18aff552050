// Lists of files over time (.pvd).
#pragma once

#include <string>
#include <vector>

namespace corvane::scene {

/// One part of the data over time.
struct PvdPart {
    struct Step {
        double time = 0.0;
        std::string path; ///< of an existing file; resolved relative to the list
    };
    std::string name;
    std::vector<Step> steps; ///< ascending, one for each time
};

/// Reads the list, not the files in it. Throws host::HostError, also when the list is empty or a
/// file in it does not exist.
std::vector<PvdPart> readPvd(const std::string& path);

} // namespace corvane::scene
