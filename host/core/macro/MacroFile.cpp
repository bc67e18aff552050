// Macros on the disk.
#include "host/core/macro/MacroFile.h"

#include "host/core/HostError.h"
#include "host/core/PartFile.h"

#include <fstream>

namespace corvane::host {

void writeMacro(const std::vector<std::string>& lines, const std::string& fileName) {
    PartFile part(fileName);
    std::ofstream file(part.path(), std::ios::binary);
    for (const std::string& line : lines) {
        file << line << '\n';
    }
    file.close();
    if (!file) {
        throw HostError("Cannot write the macro " + fileName +
                        ". Is the disk full, or the folder not yours to write to?");
    }
    part.commit();
}

} // namespace corvane::host
