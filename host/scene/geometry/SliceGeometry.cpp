// Plane cuts through meshes.
#include "host/scene/geometry/Geometry.h"

#include <vtkCutter.h>
#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkPlane.h>
#include <vtkPointData.h>

#include <array>
#include <cmath>

namespace corvane::scene {

namespace {

void setNormals(vtkPolyData& slice, const std::array<double, 3>& normal) {
    const vtkNew<vtkFloatArray> normals;
    normals->SetName("Normals");
    normals->SetNumberOfComponents(3);
    normals->SetNumberOfTuples(slice.GetNumberOfPoints());
    for (int c = 0; c < 3; ++c) {
        normals->FillComponent(c, normal[static_cast<std::size_t>(c)]);
    }
    slice.GetPointData()->SetNormals(normals);
}

/// A plane in the lower face of a mesh would cut nothing, one in the upper face all of it.
double movedInside(vtkDataSet& mesh, std::size_t axis, double position) {
    std::array<double, 6> box{};
    mesh.GetBounds(box.data());
    const double low = box[2 * axis];
    const double room = 1e-6 * (box[2 * axis + 1] - low);
    return std::abs(position - low) <= room ? low + room : position;
}

} // namespace

vtkSmartPointer<vtkPolyData> sliceOf(vtkDataSet& mesh, int axis, double position) {
    const auto across = static_cast<std::size_t>(axis - 1);
    std::array<double, 3> normal{};
    normal[across] = 1.0;
    std::array<double, 3> origin{};
    origin[across] = movedInside(mesh, across, position);

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
