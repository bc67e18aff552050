// Macros on the disk.
#include "host/core/macro/MacroFile.h"

#include "host/core/base/HostError.h"
#include "host/core/files/InputFiles.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace corvane::host {

namespace {

namespace fs = std::filesystem;

HostError cannotOpen(const std::string& fileName, const std::string& reason) {
    return HostError("Cannot open the macro file " + fileName + ": " + reason + ".");
}

} // namespace

std::unique_ptr<std::istream> openMacro(const std::string& fileName) {
    std::error_code error;
    const fs::file_status status = fs::status(fileName, error);
    if (error) {
        throw cannotOpen(fileName, error.message());
    }
    if (fs::is_directory(status)) {
        throw cannotOpen(fileName, "it is a folder");
    }
    if (!fs::is_regular_file(status)) {
        throw cannotOpen(fileName, "it is not a regular file");
    }
    inputFiles().add(fileName);
    auto file = std::make_unique<std::ifstream>(fileName, std::ios::binary);
    if (!*file) {
        throw cannotOpen(fileName, std::strerror(errno));
    }
    return file;
}

void expectWritable(const std::string& fileName, const PartFile::Tell& tell) {
    const PartFile probe(fileName, tell);
}

void writeMacro(const std::vector<std::string>& lines, const std::string& fileName,
                const PartFile::Tell& tell) {
    PartFile part(fileName, tell);
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
