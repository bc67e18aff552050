// The outside of meshes.
#include "host/scene/geometry/Geometry.h"

#include <vtkDataSetSurfaceFilter.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPolyDataNormals.h>
#include <vtkVertexGlyphFilter.h>

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

vtkSmartPointer<vtkPolyData> withNormals(vtkSmartPointer<vtkPolyData> surface) {
    const bool isSurface = surface->GetNumberOfPolys() > 0 || surface->GetNumberOfStrips() > 0;
    if (!isSurface || surface->GetPointData()->GetNormals() != nullptr) {
        return surface;
    }
    const vtkNew<vtkPolyDataNormals> normals;
    normals->SetInputData(surface);
    normals->SetFeatureAngle(featureAngle);
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
