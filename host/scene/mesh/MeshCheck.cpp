#include "host/scene/mesh/MeshCheck.h"

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkCellTypes.h>
#include <vtkDataArray.h>
#include <vtkGenericCell.h>
#include <vtkIdTypeArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkUnstructuredGrid.h>

#include <array>
#include <map>
#include <utility>

namespace corvane::scene {

namespace {

/// The offsets of the cells ascend from 0 and stay within the connectivity.
bool hasOrder(vtkCellArray& cells) {
    vtkDataArray& offsets = *cells.GetOffsetsArray();
    const vtkIdType count = offsets.GetNumberOfTuples();
    for (vtkIdType i = 1; i < count; ++i) {
        if (offsets.GetComponent(i, 0) < offsets.GetComponent(i - 1, 0)) {
            return false;
        }
    }
    return count == 0 || (offsets.GetComponent(0, 0) == 0.0 &&
                          offsets.GetComponent(count - 1, 0) <=
                              static_cast<double>(cells.GetNumberOfConnectivityIds()));
}

/// Each cell is of a known type, and has the number of points of that type.
bool hasSoundKinds(vtkUnstructuredGrid& grid) {
    const vtkIdType count = grid.GetNumberOfCells();
    if (count == 0) {
        return true;
    }
    if (grid.GetCellTypesArray()->GetNumberOfTuples() != count ||
        grid.GetCells()->GetNumberOfCells() != count) {
        return false;
    }
    const vtkNew<vtkGenericCell> cell;
    std::map<int, vtkIdType> pointsOfKind;
    for (vtkIdType i = 0; i < count; ++i) {
        const int kind = grid.GetCellType(i);
        const auto [known, isNew] = pointsOfKind.emplace(kind, 0);
        if (isNew) {
            cell->SetCellType(kind);
            if (cell->GetCellType() != kind) {
                return false;
            }
            known->second = cell->RequiresExplicitFaceRepresentation() ||
                                    vtkCellTypes::IsLinear(static_cast<unsigned char>(kind)) == 0
                                ? 0
                                : cell->GetNumberOfPoints();
        }
        if (known->second > 0 && grid.GetCells()->GetCellSize(i) != known->second) {
            return false;
        }
    }
    return true;
}

bool hasPoints(vtkCellArray* cells, vtkIdType pointCount) {
    if (cells == nullptr) {
        return true;
    }
    if (!hasOrder(*cells)) {
        return false;
    }
    if (cells->GetNumberOfConnectivityIds() == 0) {
        return true;
    }
    std::array<double, 2> range{};
    cells->GetConnectivityArray()->GetRange(range.data());
    return range[0] >= 0.0 && range[1] < static_cast<double>(pointCount);
}

/// VTK has no kind for a cell of fewer points.
bool hasLeastPoints(vtkCellArray* cells, vtkIdType least) {
    if (cells == nullptr) {
        return true;
    }
    for (vtkIdType i = 0; i < cells->GetNumberOfCells(); ++i) {
        if (cells->GetCellSize(i) < least) {
            return false;
        }
    }
    return true;
}

bool hasSoundCells(vtkPolyData& surface) {
    const vtkIdType points = surface.GetNumberOfPoints();
    for (const auto& [cells, least] :
         {std::pair{surface.GetVerts(), 1}, std::pair{surface.GetLines(), 2},
          std::pair{surface.GetPolys(), 3}, std::pair{surface.GetStrips(), 3}}) {
        if (!hasPoints(cells, points) || !hasLeastPoints(cells, least)) {
            return false;
        }
    }
    return true;
}

/// For a polyhedron as VTK stores it: the number of faces, then for each face the number of its
/// points and their ids.
bool hasPoints(const vtkIdTypeArray& faces, vtkIdType start, vtkIdType pointCount) {
    const vtkIdType size = faces.GetNumberOfValues();
    if (start >= size) {
        return false;
    }
    vtkIdType at = start + 1;
    for (vtkIdType face = faces.GetValue(start); face > 0; --face) {
        if (at >= size) {
            return false;
        }
        const vtkIdType end = at + 1 + faces.GetValue(at);
        if (end <= at || end > size) {
            return false;
        }
        while (++at < end) {
            if (faces.GetValue(at) < 0 || faces.GetValue(at) >= pointCount) {
                return false;
            }
        }
    }
    return true;
}

bool hasSoundPolyhedra(vtkUnstructuredGrid& grid) {
    const vtkIdTypeArray* const faces = grid.GetFaces();
    const vtkIdTypeArray* const locations = grid.GetFaceLocations();
    if (faces == nullptr || locations == nullptr) {
        return true;
    }
    for (vtkIdType cell = 0; cell < locations->GetNumberOfValues(); ++cell) {
        const vtkIdType start = locations->GetValue(cell);
        if (start >= 0 && !hasPoints(*faces, start, grid.GetNumberOfPoints())) {
            return false;
        }
    }
    return true;
}

bool hasSoundCells(vtkDataSet& mesh) {
    const vtkIdType points = mesh.GetNumberOfPoints();
    if (auto* const grid = vtkUnstructuredGrid::SafeDownCast(&mesh)) {
        return hasPoints(grid->GetCells(), points) && hasSoundKinds(*grid) &&
               hasSoundPolyhedra(*grid);
    }
    if (auto* const surface = vtkPolyData::SafeDownCast(&mesh)) {
        return hasSoundCells(*surface);
    }
    return true;
}

bool hasTuples(vtkDataSetAttributes& attributes, vtkIdType count) {
    for (int i = 0; i < attributes.GetNumberOfArrays(); ++i) {
        if (attributes.GetAbstractArray(i)->GetNumberOfTuples() != count) {
            return false;
        }
    }
    return true;
}

} // namespace

bool isSound(vtkDataSet& mesh) {
    return hasTuples(*mesh.GetPointData(), mesh.GetNumberOfPoints()) &&
           hasTuples(*mesh.GetCellData(), mesh.GetNumberOfCells()) && hasSoundCells(mesh);
}

} // namespace corvane::scene
