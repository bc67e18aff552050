#include "host/scene/formats/NamedFilesCheck.h"

#include "host/core/files/InputFiles.h"
#include "host/scene/formats/xml/XmlHead.h"
#include "host/scene/mesh/FileBytes.h"
#include "host/scene/mesh/ReadError.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

namespace corvane::scene {

namespace {

namespace fs = std::filesystem;

/// Looks at the start only, since files that hold their data themselves may be large.
bool namesFiles(const fs::path& path) {
    std::array<char, 1024> bytes{};
    std::ifstream stream(path, std::ios::binary);
    stream.read(bytes.data(), bytes.size());
    const std::string_view start(bytes.data(), static_cast<std::size_t>(stream.gcount()));
    constexpr std::array kinds{"MultiBlock", "PartitionedDataSet", "Hierarchical",
                               "AMR",        "PUnstructuredGrid",  "PPolyData",
                               "PImageData", "PRectilinearGrid",   "PStructuredGrid"};
    return std::any_of(kinds.begin(), kinds.end(), [start](const char* kind) {
        return start.find(kind) != std::string_view::npos;
    });
}

void collect(const XmlElement& element, std::vector<std::string>& files) {
    for (const char* const name : {"file", "Source"}) {
        if (element.has(name)) {
            files.push_back(element.attribute(name));
        }
    }
    for (const XmlElement& child : element.children) {
        collect(child, files);
    }
}

/// In the order of the file. Empty where it is not well-formed, which its reader tells.
std::vector<std::string> filesNamedIn(const fs::path& path) {
    FileBytes bytes(path.string());
    std::vector<std::string> files;
    if (const auto head = readXmlHead(bytes)) {
        collect(head->root, files);
    }
    return files;
}

/// Follows the names, and knows on which way it is.
class Walk {
public:
    void check(const fs::path& path) {
        if (!namesFiles(path)) {
            return;
        }
        const fs::path real = fs::canonical(path);
        if (std::find(m_way.begin(), m_way.end(), real) != m_way.end()) {
            throw ReadFailure("it names " + path.string() + ", which names itself");
        }
        m_way.push_back(real);
        for (const std::string& file : filesNamedIn(path)) {
            checkNamed(path.parent_path() / file);
        }
        m_way.pop_back();
    }

private:
    void checkNamed(const fs::path& path) {
        std::error_code error;
        const fs::file_status status = fs::status(path, error);
        host::inputFiles().add(path.string());
        if (!fs::exists(status)) {
            return;
        }
        if (!fs::is_regular_file(status)) {
            throw ReadFailure("it names " + path.string() + ", which is not a regular file");
        }
        check(path);
    }

    std::vector<fs::path> m_way; ///< to the file that is being looked at
};

} // namespace

void checkNamedFiles(const std::string& path) {
    Walk().check(path);
}

} // namespace corvane::scene
