// A format of data files, as people are told of it.
#pragma once

#include <string>
#include <vector>

namespace corvane::host {

struct DataFormat {
    std::vector<std::string> extensions; ///< in lower case, with the dot: ".cgns"
    std::string description;             ///< what such a file is: "OpenFOAM case"
};

} // namespace corvane::host
