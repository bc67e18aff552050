// OpenFOAM cases, written as text.
#pragma once

#include "host/core/page/Vec3.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace corvane::test {

/// Cells of any shape, as the faces around them. Faces that two cells name are inside.
struct FoamMesh {
    using Face = std::vector<int>; ///< points, seen against the clock from outside the cell
    using Cell = std::vector<Face>;

    std::vector<host::Vec3> points;
    std::vector<Cell> cells;
};

FoamMesh foamBox(); ///< SampleBox.h
/// A cube of edge 1 beside four that are half as large: its right side has four faces.
FoamMesh foamRefinement();

/// One polyMesh and the fields on it. The patches are "inlet", "outlet" and "walls": what is left,
/// what is right, and the rest.
class FoamCase {
public:
    /// Writes constant/polyMesh into the folder; into constant/region/polyMesh with a region.
    FoamCase(std::filesystem::path folder, FoamMesh mesh, std::string region = {});

    /// Makes one of the patches meet the part of another processor, as "procBoundary0to1".
    void joinPatch(const std::string& patch, int own, int other);

    /// "p": x of the middles of the cells + 10 time. Time as the folder is to be called.
    void writePressure(const std::string& time) const;
    /// "U": (x, 0, 0).
    void writeVelocity(const std::string& time) const;
    /// Any text in the place of a field.
    void writeField(const std::string& time, const std::string& name,
                    const std::string& text) const;

    std::filesystem::path fieldFile(const std::string& time, const std::string& name) const;
    std::filesystem::path meshFile(const std::string& name) const; ///< "points", "faces", …

private:
    struct Patch {
        std::string name;
        std::string type;
        std::vector<FoamMesh::Face> faces;
        std::vector<int> owners;
    };

    void sortFaces();
    void writeMesh() const;
    std::string field(const std::string& name, const std::string& kind,
                      const std::function<std::string(double x)>& value) const;
    host::Vec3 middleOf(const FoamMesh::Cell& cell) const;

    std::filesystem::path m_folder;
    FoamMesh m_mesh;
    std::string m_region;
    std::vector<FoamMesh::Face> m_inside;
    std::vector<int> m_owners;
    std::vector<int> m_neighbours;
    std::vector<Patch> m_patches;
};

/// The empty file that is opened.
std::string writeMarker(const std::filesystem::path& folder);

/// foamBox() with "p" at the times 0, 0.25, 1.5, and "U" at the last two of them; gives the marker.
std::string writeFoamBox(const std::filesystem::path& folder);

} // namespace corvane::test
