// The outside of meshes.
#include "host/scene/geometry/Geometry.h"

#include <vtkCellArray.h>
#include <vtkCellArrayIterator.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPolyDataNormals.h>
#include <vtkSmartPointer.h>
#include <vtkVertexGlyphFilter.h>

#include <functional>
#include <vector>

namespace corvane::scene {

namespace {

/// Edges sharper than this, in degrees, stay sharp.
constexpr double featureAngle = 30.0;

vtkSmartPointer<vtkPolyData> pointsOf(vtkDataSet& mesh) {
    const vtkNew<vtkVertexGlyphFilter> glyphs;
    glyphs->SetInputData(&mesh);
    glyphs->Update();
    return glyphs->GetOutput();
}

vtkSmartPointer<vtkPolyData> outsideOf(vtkDataSet& mesh) {
    const vtkNew<vtkDataSetSurfaceFilter> outside;
    outside->SetInputData(&mesh);
    outside->Update();
    return outside->GetOutput();
}

using VisitCell = std::function<void(vtkIdType count, const vtkIdType* points)>;

void visitCells(vtkPolyData& surface, const VisitCell& visit) {
    for (vtkCellArray* const cells : {surface.GetPolys(), surface.GetStrips()}) {
        const auto iterator = vtk::TakeSmartPointer(cells->NewIterator());
        for (iterator->GoToFirstCell(); !iterator->IsDoneWithTraversal();
             iterator->GoToNextCell()) {
            vtkIdType count = 0;
            const vtkIdType* points = nullptr;
            iterator->GetCurrentCell(count, points);
            visit(count, points);
        }
    }
}

/// Whether finding the neighbours of cells takes too long, as where a damaged file repeats a
/// triangle thousands of times: VTK compares all cells of one end of each edge with all of the
/// other.
bool isCrowded(vtkPolyData& surface) {
    std::vector<double> cellsOfPoint(static_cast<std::size_t>(surface.GetNumberOfPoints()));
    visitCells(surface, [&](vtkIdType count, const vtkIdType* points) {
        for (vtkIdType i = 0; i < count; ++i) {
            ++cellsOfPoint[static_cast<std::size_t>(points[i])];
        }
    });
    double comparisons = 0.0;
    visitCells(surface, [&](vtkIdType count, const vtkIdType* points) {
        for (vtkIdType i = 0; i < count; ++i) {
            comparisons += cellsOfPoint[static_cast<std::size_t>(points[i])] *
                           cellsOfPoint[static_cast<std::size_t>(points[(i + 1) % count])];
        }
    });
    constexpr double bearable = 1e9;
    constexpr double usual = 1000.0;
    return comparisons > bearable + usual * static_cast<double>(surface.GetNumberOfCells());
}

vtkSmartPointer<vtkPolyData> withNormals(vtkSmartPointer<vtkPolyData> surface) {
    const bool isSurface = surface->GetNumberOfPolys() > 0 || surface->GetNumberOfStrips() > 0;
    if (!isSurface || surface->GetPointData()->GetNormals() != nullptr) {
        return surface;
    }
    const vtkNew<vtkPolyDataNormals> normals;
    normals->SetInputData(surface);
    normals->SetFeatureAngle(featureAngle);
    if (isCrowded(*surface)) {
        normals->ConsistencyOff();
        normals->SplittingOff();
    }
    normals->Update();
    return normals->GetOutput();
}

} // namespace

vtkSmartPointer<vtkPolyData> surfaceOf(vtkDataSet& mesh) {
    if (mesh.GetNumberOfCells() == 0) {
        return pointsOf(mesh);
    }
    if (auto* const surface = vtkPolyData::SafeDownCast(&mesh)) {
        return withNormals(surface);
    }
    return withNormals(outsideOf(mesh));
}

} // namespace corvane::scene
