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

#include <numeric>
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

/// Whether so many cells meet at points that comparing all with each other takes too long, as where
/// a damaged file repeats a triangle a hundred thousand times.
bool isCrowded(vtkPolyData& surface) {
    std::vector<double> cellsOfPoint(static_cast<std::size_t>(surface.GetNumberOfPoints()));
    for (vtkCellArray* const cells : {surface.GetPolys(), surface.GetStrips()}) {
        const auto iterator = vtk::TakeSmartPointer(cells->NewIterator());
        for (iterator->GoToFirstCell(); !iterator->IsDoneWithTraversal();
             iterator->GoToNextCell()) {
            vtkIdType count = 0;
            const vtkIdType* points = nullptr;
            iterator->GetCurrentCell(count, points);
            for (const vtkIdType* point = points; point < points + count; ++point) {
                ++cellsOfPoint[static_cast<std::size_t>(*point)];
            }
        }
    }
    constexpr double bearable = 1e9;
    constexpr double usual = 1000.0;
    const double comparisons =
        std::inner_product(cellsOfPoint.begin(), cellsOfPoint.end(), cellsOfPoint.begin(), 0.0);
    return comparisons > bearable + usual * static_cast<double>(cellsOfPoint.size());
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
