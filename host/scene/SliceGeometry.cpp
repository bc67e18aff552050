// Plane cuts through meshes.
#include "host/scene/Geometry.h"

#include <vtkCutter.h>
#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkPlane.h>
#include <vtkPointData.h>

#include <array>

namespace corvane::scene {

namespace {

void setNormals(vtkPolyData& slice, const std::array<double, 3>& normal) {
    const vtkNew<vtkFloatArray> normals;
    normals->SetName("Normals");
    normals->SetNumberOfComponents(3);
    normals->SetNumberOfTuples(slice.GetNumberOfPoints());
    for (int c = 0; c < 3; ++c)
        normals->FillComponent(c, normal[static_cast<std::size_t>(c)]);
    slice.GetPointData()->SetNormals(normals);
}

} // namespace

vtkSmartPointer<vtkPolyData> sliceOf(vtkDataSet& mesh, int axis, double position) {
    std::array<double, 3> normal{};
    normal[static_cast<std::size_t>(axis - 1)] = 1.0;
    std::array<double, 3> origin{};
    origin[static_cast<std::size_t>(axis - 1)] = position;

    const vtkNew<vtkPlane> plane;
    plane->SetNormal(normal.data());
    plane->SetOrigin(origin.data());
    const vtkNew<vtkCutter> cutter;
    cutter->SetInputData(&mesh);
    cutter->SetCutFunction(plane);
    cutter->GenerateCutScalarsOff();
    cutter->Update();
    const vtkSmartPointer<vtkPolyData> slice = cutter->GetOutput();
    setNormals(*slice, normal);
    return slice;
}

} // namespace corvane::scene
