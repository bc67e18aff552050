#include "host/scene/formats/OpenFoamFile.h"

#include "host/core/base/Text.h"
#include "host/core/files/InputFiles.h"
#include "host/scene/formats/ReadingTrial.h"
#include "host/scene/mesh/ReadError.h"

#include <vtkCellData.h>
#include <vtkDummyController.h>
#include <vtkNew.h>
#include <vtkPOpenFOAMReader.h>
#include <vtkPointData.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

namespace corvane::scene {

namespace {

namespace fs = std::filesystem;

bool isTimeFolder(const fs::directory_entry& entry) {
    return host::parsedNumber<double>(entry.path().filename().string()) && entry.is_directory();
}

std::ptrdiff_t countTimes(const fs::path& folder) {
    std::error_code error;
    const fs::directory_iterator entries(folder, error);
    return std::count_if(begin(entries), end(entries), isTimeFolder);
}

bool isRead(const fs::directory_entry& entry) {
    const std::string name = entry.path().filename().string();
    return entry.is_directory() && (name == "constant" || name == "system" ||
                                    name.starts_with("processor") || isTimeFolder(entry));
}

/// VTK's reader would wait for whoever writes to a pipe.
void refusePipesIn(const fs::path& folder) {
    constexpr int deepest = 8; // links may lead in circles
    constexpr auto options = fs::directory_options::follow_directory_symlink |
                             fs::directory_options::skip_permission_denied;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(folder, options, error), end;
         !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (entry->is_other(ignored)) {
            throw ReadFailure("its case has " + entry->path().string() +
                              ", which is not a regular file");
        }
        if (entry.depth() == deepest) {
            entry.disable_recursion_pending();
        }
    }
}

/// The reader looks at all files of these folders.
void checkCase(const fs::path& folder) {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        if (isRead(entry)) {
            host::inputFiles().add(entry.path().string());
            refusePipesIn(entry.path());
        }
    }
}

/// Leaves out groups of patches, since each of their patches is a part of its own.
void selectPatches(vtkOpenFOAMReader& reader) {
    for (int i = 0; i < reader.GetNumberOfPatchArrays(); ++i) {
        const std::string name = reader.GetPatchArrayName(i);
        const bool isGroup =
            name.starts_with("group/") || name.find("/group/") != std::string::npos;
        reader.SetPatchArrayStatus(name.c_str(), isGroup ? 0 : 1);
    }
}

/// VTK puts patches into a block named "boundary".
std::string withoutBoundary(std::string name) {
    constexpr std::string_view boundary = "boundary/";
    const auto at = name.find(boundary);
    if (at == 0 || (at != std::string::npos && name[at - 1] == '/')) {
        name.erase(at, boundary.size());
    }
    return name;
}

/// Arrays that the points have are not needed on the cells.
void dropCellCopies(vtkDataSet& mesh) {
    vtkCellData& cells = *mesh.GetCellData();
    for (int i = cells.GetNumberOfArrays() - 1; i >= 0; --i) {
        if (mesh.GetPointData()->HasArray(cells.GetArrayName(i)) != 0) {
            cells.RemoveArray(i);
        }
    }
}

/// No look knows; but the mesh, and folders when they get another file, tell that a case is not the
/// one that was tried.
FileLook lookAtCase(const std::string& path) {
    const fs::path folder = fs::path(path).parent_path();
    FileLook look{Certainty::Unknown};
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        look.otherFiles.push_back(entry.path().string());
    }
    for (const fs::path& constant : {folder / "constant", folder / "processor0" / "constant"}) {
        for (const auto& entry : fs::recursive_directory_iterator(constant, error)) {
            look.otherFiles.push_back(entry.path().string());
        }
    }
    return look;
}

} // namespace

vtkSmartPointer<vtkAlgorithm> OpenFoamFile::openReader() const {
    const fs::path folder = fs::path(path()).parent_path();
    const fs::path divided = folder / "processor0";
    const bool isDivided = countTimes(divided) > countTimes(folder);
    const fs::path constant = (isDivided ? divided : folder) / "constant";
    if (!fs::is_directory(constant)) {
        throw ReadFailure("no OpenFOAM case is around it: there is no folder " + constant.string());
    }

    std::call_once(m_checked, [&folder] { checkCase(folder); });
    expectHarmless(path(), contentsOnly, lookAtCase);
    auto reader = vtkSmartPointer<vtkPOpenFOAMReader>::New();
    const vtkNew<vtkDummyController> controller;
    reader->SetController(controller);
    reader->SetFileName(path().c_str());
    reader->SetCaseType(isDivided ? vtkPOpenFOAMReader::DECOMPOSED_CASE
                                  : vtkPOpenFOAMReader::RECONSTRUCTED_CASE);
    reader->SkipZeroTimeOff();
    reader->CreateCellToPointOn();
    // The extra points of decomposed polyhedra would bend isosurfaces.
    reader->DecomposePolyhedraOff();
    reader->UpdateInformation();
    selectPatches(*reader);
    return reader;
}

std::vector<MeshPart> OpenFoamFile::partsOf(vtkAlgorithm& reader) const {
    auto parts = TimedMeshFile::partsOf(reader);
    for (MeshPart& part : parts) {
        part.name = withoutBoundary(std::move(part.name));
        dropCellCopies(*part.mesh);
    }
    return parts;
}

/// The fields of time 0 are often written by hand, with directives that only OpenFOAM understands.
bool OpenFoamFile::mayMissVariables(double time) const {
    return time == 0.0;
}

} // namespace corvane::scene
