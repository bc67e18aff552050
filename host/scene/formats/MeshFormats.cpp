// Which class reads which file.
#include "host/scene/formats/MeshFormats.h"

#include "host/core/base/Text.h"
#include "host/scene/formats/CgnsFile.h"
#include "host/scene/formats/ExodusFile.h"
#include "host/scene/formats/OpenFoamFile.h"
#include "host/scene/formats/ParallelXmlCheck.h"
#include "host/scene/formats/ensight/EnSightFile.h"
#include "host/scene/formats/ply/PlyFile.h"
#include "host/scene/mesh/ReadError.h"
#include "host/scene/mesh/VtkMeshFile.h"

#include <vtkDataSetAttributes.h>
#include <vtkGenericDataObjectReader.h>
#include <vtkNew.h>
#include <vtkOBJReader.h>
#include <vtkPolyData.h>
#include <vtkSTLReader.h>
#include <vtkXMLGenericDataObjectReader.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <string_view>

namespace corvane::scene {

namespace {

/// Reads with a VTK reader that has a file name and one output.
template <class Reader>
class SimpleMeshFile final : public VtkMeshFile {
public:
    using VtkMeshFile::VtkMeshFile;

private:
    vtkSmartPointer<vtkDataObject> readObject() const override {
        if constexpr (std::is_same_v<vtkXMLGenericDataObjectReader, Reader>) {
            checkParallelXml(path());
        }
        const vtkNew<Reader> reader;
        reader->SetFileName(path().c_str());
        if constexpr (std::is_base_of_v<vtkDataReader, Reader>) {
            // Otherwise it keeps the first array of each kind alone.
            reader->ReadAllScalarsOn();
            reader->ReadAllVectorsOn();
            reader->ReadAllFieldsOn();
        }
        reader->Update();
        vtkDataObject* const object = reader->GetOutputDataObject(0);
        if constexpr (std::is_same_v<vtkOBJReader, Reader>) {
            // It numbers groups and materials, which are no quantities.
            object->GetAttributes(vtkDataObject::CELL)->Initialize();
        }
        return object;
    }

    /// These readers only warn when a file ends too early.
    bool areWarningsErrors() const override { return std::is_base_of_v<vtkDataReader, Reader>; }
};

using Opener = std::unique_ptr<MeshFile> (*)(const std::string&);

template <class File>
std::unique_ptr<MeshFile> openAs(const std::string& path) {
    return std::make_unique<File>(path);
}

constexpr Opener openXml = openAs<SimpleMeshFile<vtkXMLGenericDataObjectReader>>;
constexpr Opener openLegacy = openAs<SimpleMeshFile<vtkGenericDataObjectReader>>;
constexpr Opener openStl = openAs<SimpleMeshFile<vtkSTLReader>>;
constexpr Opener openPly = openAs<PlyFile>;
constexpr Opener openObj = openAs<SimpleMeshFile<vtkOBJReader>>;
constexpr Opener openFoam = openAs<OpenFoamFile>;
constexpr Opener openEnSight = openAs<EnSightFile>;
constexpr Opener openExodus = openAs<ExodusFile>;
constexpr Opener openCgns = openAs<CgnsFile>;

constexpr std::string_view seriesExtension = ".pvd";

const std::map<std::string, Opener, std::less<>>& openers() {
    const static std::map<std::string, Opener, std::less<>> table{
        {".vtu", openXml},      {".vtp", openXml},  {".vti", openXml},    {".vtr", openXml},
        {".vts", openXml},      {".vtm", openXml},  {".pvtu", openXml},   {".pvtp", openXml},
        {".pvti", openXml},     {".pvtr", openXml}, {".pvts", openXml},   {".vtk", openLegacy},
        {".stl", openStl},      {".ply", openPly},  {".obj", openObj},    {".foam", openFoam},
        {".case", openEnSight}, {".e", openExodus}, {".exo", openExodus}, {".ex2", openExodus},
        {".cgns", openCgns},
    };
    return table;
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

Opener openerByContent(const std::string& path) {
    const std::string start = firstBytesOf(path);
    if (start.find("<VTKFile") != std::string::npos) {
        return openXml;
    }
    if (start.starts_with("# vtk DataFile")) {
        return openLegacy;
    }
    if (start.starts_with("ply\n") || start.starts_with("ply\r")) {
        return openPly;
    }
    return nullptr;
}

/// OpenFOAM cases are marked by a file that holds nothing.
bool isEmptyMarker(const std::string& path) {
    std::error_code error;
    return extensionOf(path) == ".foam" && std::filesystem::is_regular_file(path, error) &&
           std::filesystem::file_size(path, error) == 0;
}

std::string knownExtensions() {
    std::string text(seriesExtension);
    for (const auto& [extension, opener] : openers()) {
        text += " " + extension;
    }
    return text;
}

} // namespace

std::unique_ptr<MeshFile> openMeshFile(const std::string& path) {
    if (!isEmptyMarker(path)) {
        checkReadable(path);
    }
    if (const auto found = openers().find(extensionOf(path)); found != openers().end()) {
        return found->second(path);
    }
    if (const Opener opener = openerByContent(path)) {
        return opener(path);
    }
    throw readError(path, "its kind is unknown; known are " + knownExtensions());
}

bool isSeriesFile(const std::string& path) {
    return extensionOf(path) == seriesExtension;
}

} // namespace corvane::scene
