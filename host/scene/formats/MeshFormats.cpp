#include "host/scene/formats/MeshFormats.h"

#include "host/core/base/Text.h"
#include "host/core/files/InputFiles.h"
#include "host/scene/formats/CgnsFile.h"
#include "host/scene/formats/ExodusFile.h"
#include "host/scene/formats/OpenFoamFile.h"
#include "host/scene/formats/VtkFiles.h"
#include "host/scene/formats/ensight/EnSightFile.h"
#include "host/scene/formats/ply/PlyFile.h"
#include "host/scene/mesh/ReadError.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>

namespace corvane::scene {

namespace {

template <class File>
std::unique_ptr<MeshFile> openAs(const std::string& path) {
    return std::make_unique<File>(path);
}

bool isVtkXml(std::string_view start) {
    return start.find("<VTKFile") != std::string_view::npos;
}

bool isLegacyVtk(std::string_view start) {
    return start.starts_with("# vtk DataFile");
}

bool isPly(std::string_view start) {
    return start.starts_with("ply\n") || start.starts_with("ply\r");
}

std::string extensionOf(const std::string& path) {
    return host::lowerCase(std::filesystem::path(path).extension().string());
}

std::string firstBytesOf(const std::string& path) {
    std::array<char, 256> bytes{};
    std::ifstream stream(path, std::ios::binary);
    stream.read(bytes.data(), bytes.size());
    return {bytes.data(), static_cast<std::size_t>(stream.gcount())};
}

template <class Condition>
const MeshFormat* findFormat(const Condition& condition) {
    const auto& formats = meshFormats();
    const auto found = std::find_if(formats.begin(), formats.end(), condition);
    return found == formats.end() ? nullptr : &*found;
}

const MeshFormat* formatByName(const std::string& path) {
    const std::string extension = extensionOf(path);
    return findFormat([&](const MeshFormat& format) {
        return std::ranges::find(format.format.extensions, extension) !=
               format.format.extensions.end();
    });
}

const MeshFormat* formatByContent(const std::string& path) {
    const std::string start = firstBytesOf(path);
    return findFormat([&](const MeshFormat& format) {
        return format.isContent != nullptr && format.isContent(start);
    });
}

bool isEmptyFile(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) &&
           std::filesystem::file_size(path, error) == 0;
}

std::string knownExtensions() {
    std::string text;
    for (const MeshFormat& format : meshFormats()) {
        for (const std::string& extension : format.format.extensions) {
            text += " " + extension;
        }
    }
    return text;
}

} // namespace

const std::vector<MeshFormat>& meshFormats() {
    static const std::vector<MeshFormat> formats{
        {.format = {{".pvd"}, "Time series"}, .readList = readPvd},
        {.format = {{".vtu", ".vtp", ".vti", ".vtr", ".vts", ".vtm"}, "VTK XML file"},
         .open = openAs<VtkXmlFile>,
         .isContent = isVtkXml},
        {.format = {{".pvtu", ".pvtp", ".pvti", ".pvtr", ".pvts"}, "Parallel VTK XML file"},
         .open = openAs<VtkXmlFile>},
        {.format = {{".vtk"}, "Legacy VTK file"},
         .open = openAs<LegacyVtkFile>,
         .isContent = isLegacyVtk},
        {.format = {{".foam"}, "OpenFOAM case"}, .open = openAs<OpenFoamFile>, .mayBeEmpty = true},
        {.format = {{".case"}, "EnSight Gold case"}, .open = openAs<EnSightFile>},
        {.format = {{".e", ".exo", ".ex2"}, "Exodus II file"}, .open = openAs<ExodusFile>},
        {.format = {{".cgns"}, "CGNS file"}, .open = openAs<CgnsFile>},
        {.format = {{".stl"}, "STL surface"}, .open = openAs<StlFile>},
        {.format = {{".ply"}, "PLY surface"}, .open = openAs<PlyFile>, .isContent = isPly},
        {.format = {{".obj"}, "OBJ surface"}, .open = openAs<ObjFile>},
    };
    return formats;
}

const MeshFormat& formatOf(const std::string& path) {
    host::inputFiles().add(path);
    const MeshFormat* const byName = formatByName(path);
    if (byName == nullptr || !byName->mayBeEmpty || !isEmptyFile(path)) {
        checkReadable(path);
    }
    const MeshFormat* const format = byName != nullptr ? byName : formatByContent(path);
    if (format == nullptr) {
        throw readError(path, "its kind is unknown; known are" + knownExtensions());
    }
    return *format;
}

std::unique_ptr<MeshFile> openMeshFile(const std::string& path) {
    const MeshFormat& format = formatOf(path);
    if (format.open == nullptr) {
        throw readError(path, "it is a list of files, which cannot be part of another list");
    }
    return format.open(path);
}

} // namespace corvane::scene
