// OpenFOAM cases, written as text.
#include "tests/unit/host/scene/formats/FoamCase.h"

#include "tests/unit/host/scene/formats/SampleBox.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>

namespace corvane::test {

namespace fs = std::filesystem;

namespace {

std::string header(const std::string& kind, const std::string& name) {
    return "FoamFile\n{\n    version 2.0;\n    format ascii;\n    class " + kind +
           ";\n    object " + name + ";\n}\n";
}

void writeFile(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
}

template <class Items, class Text>
std::string list(const Items& items, const Text& text) {
    std::ostringstream stream;
    stream << items.size() << "\n(\n";
    for (const auto& item : items) {
        stream << text(item) << "\n";
    }
    stream << ")\n";
    return stream.str();
}

std::string vectorText(const host::Vec3& v) {
    std::ostringstream stream;
    stream << "(" << v.x << " " << v.y << " " << v.z << ")";
    return stream.str();
}

std::string faceText(const FoamMesh::Face& face) {
    std::ostringstream stream;
    stream << face.size() << "(";
    for (const int point : face) {
        stream << point << " ";
    }
    stream << ")";
    return stream.str();
}

std::string labelText(int label) {
    return std::to_string(label);
}

} // namespace

FoamMesh foamBox() {
    FoamMesh mesh{boxPoints(), {}};
    for (const auto& c : boxCells()) {
        mesh.cells.push_back({{c[0], c[3], c[2], c[1]},
                              {c[4], c[5], c[6], c[7]},
                              {c[0], c[1], c[5], c[4]},
                              {c[2], c[3], c[7], c[6]},
                              {c[0], c[4], c[7], c[3]},
                              {c[1], c[2], c[6], c[5]}});
    }
    return mesh;
}

FoamMesh foamRefinement() {
    FoamMesh mesh;
    const auto point = [&mesh](double x, double y, double z) {
        const host::Vec3 position{x, y, z};
        const auto found = std::find(mesh.points.begin(), mesh.points.end(), position);
        if (found != mesh.points.end()) {
            return static_cast<int>(found - mesh.points.begin());
        }
        mesh.points.push_back(position);
        return static_cast<int>(mesh.points.size()) - 1;
    };
    constexpr double half = 0.5;
    FoamMesh::Cell large{
        {point(0, 0, 0), point(0, 0, 1), point(0, 1, 1), point(0, 1, 0)},
        {point(0, 0, 0), point(1, 0, 0), point(1, 0, half), point(1, 0, 1), point(0, 0, 1)},
        {point(0, 1, 0), point(0, 1, 1), point(1, 1, 1), point(1, 1, half), point(1, 1, 0)},
        {point(0, 0, 0), point(0, 1, 0), point(1, 1, 0), point(1, half, 0), point(1, 0, 0)},
        {point(0, 0, 1), point(1, 0, 1), point(1, half, 1), point(1, 1, 1), point(0, 1, 1)}};
    std::vector<FoamMesh::Cell> small;
    for (const double z : {0.0, half}) {
        for (const double y : {0.0, half}) {
            const std::array<int, 8> c{point(1.0, y, z),
                                       point(1.5, y, z),
                                       point(1.5, y + half, z),
                                       point(1.0, y + half, z),
                                       point(1.0, y, z + half),
                                       point(1.5, y, z + half),
                                       point(1.5, y + half, z + half),
                                       point(1.0, y + half, z + half)};
            small.push_back({{c[0], c[3], c[2], c[1]},
                             {c[4], c[5], c[6], c[7]},
                             {c[0], c[1], c[5], c[4]},
                             {c[2], c[3], c[7], c[6]},
                             {c[0], c[4], c[7], c[3]},
                             {c[1], c[2], c[6], c[5]}});
            large.push_back({c[0], c[3], c[7], c[4]});
        }
    }
    mesh.cells.push_back(large);
    mesh.cells.insert(mesh.cells.end(), small.begin(), small.end());
    return mesh;
}

FoamCase::FoamCase(fs::path folder, FoamMesh mesh, std::string region)
    : m_folder(std::move(folder)), m_mesh(std::move(mesh)), m_region(std::move(region)) {
    sortFaces();
    writeMesh();
}

void FoamCase::sortFaces() {
    struct Found {
        FoamMesh::Face face;
        int owner = 0;
        int neighbour = -1;
    };
    std::map<FoamMesh::Face, Found> faces;
    for (int cell = 0; cell < static_cast<int>(m_mesh.cells.size()); ++cell) {
        for (const FoamMesh::Face& face : m_mesh.cells[static_cast<std::size_t>(cell)]) {
            FoamMesh::Face key = face;
            std::sort(key.begin(), key.end());
            const auto [found, isNew] = faces.try_emplace(key, Found{face, cell});
            if (!isNew) {
                found->second.neighbour = cell;
            }
        }
    }

    const auto byX = [](const host::Vec3& a, const host::Vec3& b) { return a.x < b.x; };
    const auto [left, right] = std::minmax_element(m_mesh.points.begin(), m_mesh.points.end(), byX);
    m_patches = {
        {"inlet", "patch", {}, {}}, {"outlet", "patch", {}, {}}, {"walls", "wall", {}, {}}};
    for (const auto& [key, found] : faces) {
        if (found.neighbour >= 0) {
            m_inside.push_back(found.face);
            m_owners.push_back(found.owner);
            m_neighbours.push_back(found.neighbour);
            continue;
        }
        const auto liesAt = [&](double x) {
            return std::all_of(key.begin(), key.end(), [&](int point) {
                return m_mesh.points[static_cast<std::size_t>(point)].x == x;
            });
        };
        Patch& patch = m_patches[liesAt(left->x) ? 0 : liesAt(right->x) ? 1 : 2];
        patch.faces.push_back(found.face);
        patch.owners.push_back(found.owner);
    }
}

void FoamCase::joinPatch(const std::string& name, int own, int other) {
    const std::string numbers = std::to_string(own) + "to" + std::to_string(other);
    Patch joined{"procBoundary" + numbers,
                 "processor; myProcNo " + std::to_string(own) + "; neighbProcNo " +
                     std::to_string(other),
                 {},
                 {}};
    const auto patch = std::find_if(m_patches.begin(), m_patches.end(),
                                    [&](const Patch& p) { return p.name == name; });
    std::swap(joined.faces, patch->faces);
    std::swap(joined.owners, patch->owners);
    m_patches.push_back(joined);
    writeMesh();
}

void FoamCase::writeMesh() const {
    std::vector<FoamMesh::Face> faces = m_inside;
    std::vector<int> owners = m_owners;
    std::ostringstream boundary;
    boundary << header("polyBoundaryMesh", "boundary") << m_patches.size() << "\n(\n";
    for (const Patch& patch : m_patches) {
        boundary << patch.name << "\n{\n    type " << patch.type << ";\n    nFaces "
                 << patch.faces.size() << ";\n    startFace " << faces.size() << ";\n}\n";
        faces.insert(faces.end(), patch.faces.begin(), patch.faces.end());
        owners.insert(owners.end(), patch.owners.begin(), patch.owners.end());
    }
    boundary << ")\n";
    writeFile(meshFile("boundary"), boundary.str());
    writeFile(meshFile("points"),
              header("vectorField", "points") + list(m_mesh.points, vectorText));
    writeFile(meshFile("faces"), header("faceList", "faces") + list(faces, faceText));
    writeFile(meshFile("owner"), header("labelList", "owner") + list(owners, labelText));
    writeFile(meshFile("neighbour"),
              header("labelList", "neighbour") + list(m_neighbours, labelText));
}

void FoamCase::writePressure(const std::string& time) const {
    const double seconds = std::stod(time);
    writeField(time, "p", field("p", "Scalar", [seconds](double x) {
                   return std::to_string(samplePressure(x, seconds));
               }));
}

void FoamCase::writeVelocity(const std::string& time) const {
    writeField(time, "U", field("U", "Vector", [](double x) { return vectorText({x, 0.0, 0.0}); }));
}

void FoamCase::writeField(const std::string& time, const std::string& name,
                          const std::string& text) const {
    writeFile(fieldFile(time, name), text);
}

fs::path FoamCase::fieldFile(const std::string& time, const std::string& name) const {
    return m_folder / time / m_region / name;
}

fs::path FoamCase::meshFile(const std::string& name) const {
    return m_folder / "constant" / m_region / "polyMesh" / name;
}

std::string FoamCase::field(const std::string& name, const std::string& kind,
                            const std::function<std::string(double x)>& value) const {
    std::string item = kind;
    item.front() = kind == "Scalar" ? 's' : 'v';
    std::ostringstream text;
    text << header("vol" + kind + "Field", name) << "dimensions [0 0 0 0 0 0 0];\n"
         << "internalField nonuniform List<" << item << ">\n"
         << list(m_mesh.cells, [&](const FoamMesh::Cell& cell) { return value(middleOf(cell).x); })
         << ";\nboundaryField\n{\n";
    for (const Patch& patch : m_patches) {
        const bool isJoined = patch.type.starts_with("processor");
        text << "    " << patch.name << " { type " << (isJoined ? "processor" : "zeroGradient")
             << ";";
        if (isJoined) {
            text << " value uniform " << value(0.0) << ";";
        }
        text << " }\n";
    }
    text << "}\n";
    return text.str();
}

host::Vec3 FoamCase::middleOf(const FoamMesh::Cell& cell) const {
    host::Bounds bounds;
    for (const FoamMesh::Face& face : cell) {
        for (const int point : face) {
            bounds.add(m_mesh.points[static_cast<std::size_t>(point)]);
        }
    }
    return bounds.center();
}

std::string writeMarker(const fs::path& folder) {
    writeFile(folder / "case.foam", "");
    return (folder / "case.foam").string();
}

std::string writeFoamBox(const fs::path& folder) {
    const FoamCase foam(folder, foamBox());
    for (const char* const time : {"0", "0.25", "1.5"}) {
        foam.writePressure(time);
    }
    for (const char* const time : {"0.25", "1.5"}) {
        foam.writeVelocity(time);
    }
    return writeMarker(folder);
}

} // namespace corvane::test
