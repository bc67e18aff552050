#include "host/scene/formats/ensight/EnSightGeometry.h"

#include "host/scene/mesh/ReadError.h"

#include <vtkCellType.h>
#include <vtkFloatArray.h>
#include <vtkImageData.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkRectilinearGrid.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <set>
#include <sstream>

namespace corvane::scene {

namespace {

using Ids = std::vector<vtkIdType>;

struct Shape {
    int cellType = VTK_EMPTY_CELL;
    std::vector<std::size_t> nodes; ///< for each node in VTK's order, its index in EnSight's
};

Shape shape(int cellType, std::size_t nodeCount) {
    std::vector<std::size_t> nodes(nodeCount);
    std::iota(nodes.begin(), nodes.end(), std::size_t{0});
    return {cellType, nodes};
}

const Shape* shapeOf(const std::string& kind) {
    // The first triangle of a wedge faces outwards in VTK.
    static const std::map<std::string, Shape> shapes{
        {"point", shape(VTK_VERTEX, 1)},
        {"bar2", shape(VTK_LINE, 2)},
        {"bar3", shape(VTK_QUADRATIC_EDGE, 3)},
        {"tria3", shape(VTK_TRIANGLE, 3)},
        {"tria6", shape(VTK_QUADRATIC_TRIANGLE, 6)},
        {"quad4", shape(VTK_QUAD, 4)},
        {"quad8", shape(VTK_QUADRATIC_QUAD, 8)},
        {"tetra4", shape(VTK_TETRA, 4)},
        {"tetra10", shape(VTK_QUADRATIC_TETRA, 10)},
        {"pyramid5", shape(VTK_PYRAMID, 5)},
        {"pyramid13", shape(VTK_QUADRATIC_PYRAMID, 13)},
        {"penta6", {VTK_WEDGE, {0, 2, 1, 3, 5, 4}}},
        {"penta15", {VTK_QUADRATIC_WEDGE, {0, 2, 1, 3, 5, 4, 8, 7, 6, 11, 10, 9, 12, 14, 13}}},
        {"hexa8", shape(VTK_HEXAHEDRON, 8)},
        {"hexa20", shape(VTK_QUADRATIC_HEXAHEDRON, 20)},
    };
    const auto found = shapes.find(kind);
    return found == shapes.end() ? nullptr : &found->second;
}

std::size_t counted(int count) {
    if (count < 0) {
        throw ReadFailure("holds a negative count");
    }
    return static_cast<std::size_t>(count);
}

std::size_t sumOf(const std::vector<int>& counts) {
    std::size_t sum = 0;
    for (const int count : counts) {
        sum += counted(count);
    }
    return sum;
}

vtkSmartPointer<vtkFloatArray> arrayOf(const std::vector<float>& values) {
    auto array = vtkSmartPointer<vtkFloatArray>::New();
    array->SetNumberOfValues(static_cast<vtkIdType>(values.size()));
    std::copy(values.begin(), values.end(), array->GetPointer(0));
    return array;
}

class GeometryReader {
public:
    explicit GeometryReader(EnSightInput& input) : m_input(input) {}

    EnSightParts read() {
        m_input.line();
        m_input.line();
        m_hasNodeIds = hasIds("node id");
        m_hasElementIds = hasIds("element id");
        if (!m_input.isAtEnd() && m_input.peekKeyword() == "extents") {
            m_input.keyword();
            m_input.numbers(6);
        }
        EnSightParts parts;
        while (hasEnSightPart(m_input)) {
            m_input.keyword();
            const int number = m_input.integer();
            EnSightPart part;
            part.name = m_input.line();
            readMesh(part);
            if (!parts.emplace(number, std::move(part)).second) {
                throw ReadFailure("has two parts with the number " + std::to_string(number));
            }
        }
        return parts;
    }

private:
    bool hasIds(const std::string& what) {
        const std::string text = m_input.keyword();
        if (!text.starts_with(what)) {
            throw ReadFailure("does not say whether there is a \"" + what + "\"");
        }
        return text.ends_with("given") || text.ends_with("ignore");
    }

    void readMesh(EnSightPart& part) {
        std::istringstream words(m_input.keyword());
        std::string kind;
        words >> kind;
        if (kind == "coordinates") {
            readUnstructured(part);
        } else if (kind == "block") {
            const std::set<std::string> options{std::istream_iterator<std::string>(words), {}};
            readBlock(part, options);
        } else {
            throw ReadFailure("has a part that begins with neither coordinates nor a block");
        }
    }

    vtkSmartPointer<vtkPoints> readPoints(std::size_t count) {
        const auto x = m_input.numbers(count);
        const auto y = m_input.numbers(count);
        const auto z = m_input.numbers(count);
        auto points = vtkSmartPointer<vtkPoints>::New();
        points->SetNumberOfPoints(static_cast<vtkIdType>(count));
        for (std::size_t i = 0; i < count; ++i) {
            points->SetPoint(static_cast<vtkIdType>(i), x[i], y[i], z[i]);
        }
        return points;
    }

    void readUnstructured(EnSightPart& part) {
        const std::size_t count = counted(m_input.integer());
        m_nodeCount = static_cast<int>(count);
        if (m_hasNodeIds) {
            m_input.integers(count);
        }
        const auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
        grid->SetPoints(readPoints(count));
        while (!m_input.isAtEnd()) {
            const std::string next = m_input.peekKeyword();
            if (next == "part" || next == "END TIME STEP") {
                break;
            }
            const std::string kind = m_input.keyword();
            const bool isGhost = kind.starts_with("g_");
            const vtkIdType first = grid->GetNumberOfCells();
            const vtkNew<vtkUnstructuredGrid> elsewhere;
            const int cells =
                readCells(isGhost ? *elsewhere : *grid, isGhost ? kind.substr(2) : kind);
            if (!part.cells.emplace(kind, EnSightPart::Cells{first, cells, isGhost}).second) {
                throw ReadFailure("has the cells \"" + kind + "\" of a part twice");
            }
        }
        part.mesh = grid;
    }

    int readCells(vtkUnstructuredGrid& grid, const std::string& kind) {
        const Shape* const shape = shapeOf(kind);
        if (shape == nullptr && kind != "nsided" && kind != "nfaced") {
            throw ReadFailure("has cells of an unknown kind");
        }
        const int count = m_input.integer();
        const std::size_t cells = counted(count);
        if (m_hasElementIds) {
            m_input.integers(cells);
        }
        if (kind == "nsided") {
            readPolygons(grid, cells);
        } else if (kind == "nfaced") {
            readPolyhedra(grid, cells);
        } else {
            readShapes(grid, *shape, cells);
        }
        return count;
    }

    void readShapes(vtkUnstructuredGrid& grid, const Shape& shape, std::size_t cells) {
        const Ids nodes = readNodes(cells * shape.nodes.size());
        Ids cell(shape.nodes.size());
        for (std::size_t first = 0; first < nodes.size(); first += cell.size()) {
            for (std::size_t i = 0; i < cell.size(); ++i) {
                cell[i] = nodes[first + shape.nodes[i]];
            }
            grid.InsertNextCell(shape.cellType, static_cast<vtkIdType>(cell.size()), cell.data());
        }
    }

    void readPolygons(vtkUnstructuredGrid& grid, std::size_t cells) {
        const auto sides = m_input.integers(cells);
        const Ids nodes = readNodes(sumOf(sides));
        const vtkIdType* next = nodes.data();
        for (const int count : sides) {
            grid.InsertNextCell(VTK_POLYGON, count, next);
            next += count;
        }
    }

    void readPolyhedra(vtkUnstructuredGrid& grid, std::size_t cells) {
        const auto faceCounts = m_input.integers(cells);
        const auto sides = m_input.integers(sumOf(faceCounts));
        const Ids nodes = readNodes(sumOf(sides));
        auto node = nodes.begin();
        auto side = sides.begin();
        for (const int faceCount : faceCounts) {
            Ids faces; // for each the number of its nodes, and the nodes
            std::set<vtkIdType> corners;
            for (int face = 0; face < faceCount; ++face) {
                const auto end = node + *side;
                faces.push_back(*side++);
                faces.insert(faces.end(), node, end);
                corners.insert(node, end);
                node = end;
            }
            const Ids points(corners.begin(), corners.end());
            grid.InsertNextCell(VTK_POLYHEDRON, static_cast<vtkIdType>(points.size()),
                                points.data(), faceCount, faces.data());
        }
    }

    /// Nodes are counted from 1.
    Ids readNodes(std::size_t count) {
        const auto numbers = m_input.integers(count);
        Ids nodes;
        nodes.reserve(count);
        for (const int number : numbers) {
            if (number < 1 || number > m_nodeCount) {
                throw ReadFailure("has cells with nodes that are not there");
            }
            nodes.push_back(number - 1);
        }
        return nodes;
    }

    void readBlock(EnSightPart& part, const std::set<std::string>& options) {
        for (const char* const option : {"iblanked", "with_ghost", "range"}) {
            if (options.contains(option)) {
                throw ReadFailure(std::string("has a block that is \"") + option +
                                  "\", which cannot be read");
            }
        }
        const auto counts = m_input.integers(3);
        std::size_t points = 1;
        for (const int count : counts) {
            if (count < 1) {
                throw ReadFailure("has a block without points");
            }
            points *= static_cast<std::size_t>(count);
            if (points > std::numeric_limits<int>::max()) {
                throw ReadFailure("has a block that is too large");
            }
        }
        if (options.contains("uniform")) {
            part.mesh = readUniform(counts);
        } else if (options.contains("rectilinear")) {
            part.mesh = readRectilinear(counts);
        } else {
            part.mesh = readCurvilinear(counts, points);
        }
        part.cells["block"] = {0, part.mesh->GetNumberOfCells(), false};
    }

    vtkSmartPointer<vtkDataSet> readUniform(const std::vector<int>& counts) {
        const auto origin = m_input.numbers(3);
        const auto spacing = m_input.numbers(3);
        auto image = vtkSmartPointer<vtkImageData>::New();
        image->SetDimensions(counts.data());
        image->SetOrigin(origin[0], origin[1], origin[2]);
        image->SetSpacing(spacing[0], spacing[1], spacing[2]);
        return image;
    }

    vtkSmartPointer<vtkDataSet> readRectilinear(const std::vector<int>& counts) {
        auto grid = vtkSmartPointer<vtkRectilinearGrid>::New();
        grid->SetDimensions(counts.data());
        grid->SetXCoordinates(arrayOf(m_input.numbers(counted(counts[0]))));
        grid->SetYCoordinates(arrayOf(m_input.numbers(counted(counts[1]))));
        grid->SetZCoordinates(arrayOf(m_input.numbers(counted(counts[2]))));
        return grid;
    }

    vtkSmartPointer<vtkDataSet> readCurvilinear(const std::vector<int>& counts,
                                                std::size_t points) {
        auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
        grid->SetDimensions(counts.data());
        grid->SetPoints(readPoints(points));
        return grid;
    }

    EnSightInput& m_input;
    bool m_hasNodeIds = false;
    bool m_hasElementIds = false;
    int m_nodeCount = 0;
};

} // namespace

bool hasEnSightPart(EnSightInput& input) {
    if (input.isAtEnd()) {
        return false;
    }
    const std::string next = input.peekKeyword();
    if (next == "END TIME STEP") {
        return false;
    }
    if (next != "part") {
        throw ReadFailure("has something else where a part should begin");
    }
    return true;
}

EnSightParts readEnSightGeometry(EnSightInput& input, int index) {
    if (input.kind() == EnSightInput::Kind::Binary) {
        input.line();
    }
    goToEnSightStep(input, index, [&input] { GeometryReader(input).read(); });
    return GeometryReader(input).read();
}

} // namespace corvane::scene
