// Lists of files through time (.pvd).
#pragma once

#include <string>
#include <vector>

namespace corvane::scene {

/// One part of the data through time.
struct PvdPart {
    struct Step {
        double time = 0.0;
        std::string path; ///< exists; relative names were taken from the list's folder
    };
    std::string name;
    std::vector<Step> steps; ///< by ascending time, one for each time
};

/// Reads the list, not the files in it. Throws host::HostError when it cannot be read, is empty, or
/// names a file that does not exist.
std::vector<PvdPart> readPvd(const std::string& path);

} // namespace corvane::scene
