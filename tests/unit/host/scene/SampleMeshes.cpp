// Small meshes whose values are known everywhere.
#include "tests/unit/host/scene/SampleMeshes.h"

#include <vtkCellData.h>
#include <vtkCubeSource.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>

#include <array>

namespace corvane::test {

namespace {

constexpr int cellsPerEdge = 4;
constexpr int pointsPerEdge = cellsPerEdge + 1;
constexpr double spacing = 1.0 / cellsPerEdge;

void addArrays(vtkDataSet& mesh, double offset) {
    const vtkNew<vtkDoubleArray> scalar;
    scalar->SetName("T");
    const vtkNew<vtkDoubleArray> vector;
    vector->SetName("V");
    vector->SetNumberOfComponents(3);
    for (vtkIdType i = 0; i < mesh.GetNumberOfPoints(); ++i) {
        std::array<double, 3> x{};
        mesh.GetPoint(i, x.data());
        scalar->InsertNextValue(x[0] + offset);
        vector->InsertNextTuple3(x[0], 2.0 * x[1], -3.0 * x[2]);
    }
    mesh.GetPointData()->AddArray(scalar);
    mesh.GetPointData()->AddArray(vector);

    const vtkNew<vtkDoubleArray> ofCells;
    ofCells->SetName("C");
    for (vtkIdType i = 0; i < mesh.GetNumberOfCells(); ++i) {
        ofCells->InsertNextValue(static_cast<double>(i));
    }
    mesh.GetCellData()->AddArray(ofCells);
}

vtkSmartPointer<vtkPoints> samplePoints() {
    const auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetDataTypeToDouble();
    for (int k = 0; k < pointsPerEdge; ++k) {
        for (int j = 0; j < pointsPerEdge; ++j) {
            for (int i = 0; i < pointsPerEdge; ++i) {
                points->InsertNextPoint(i * spacing, j * spacing, k * spacing);
            }
        }
    }
    return points;
}

} // namespace

vtkSmartPointer<vtkUnstructuredGrid> sampleGrid(double offset) {
    const auto structured = sampleStructuredGrid();
    const auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    grid->SetPoints(structured->GetPoints());
    const vtkNew<vtkIdList> corners;
    for (vtkIdType i = 0; i < structured->GetNumberOfCells(); ++i) {
        structured->GetCellPoints(i, corners);
        grid->InsertNextCell(VTK_HEXAHEDRON, corners);
    }
    addArrays(*grid, offset);
    return grid;
}

vtkSmartPointer<vtkImageData> sampleImage() {
    const auto image = vtkSmartPointer<vtkImageData>::New();
    image->SetDimensions(pointsPerEdge, pointsPerEdge, pointsPerEdge);
    image->SetSpacing(spacing, spacing, spacing);
    addArrays(*image, 0.0);
    return image;
}

vtkSmartPointer<vtkRectilinearGrid> sampleRectilinearGrid() {
    const vtkNew<vtkDoubleArray> coordinates;
    for (int i = 0; i < pointsPerEdge; ++i) {
        coordinates->InsertNextValue(i * spacing);
    }
    const auto grid = vtkSmartPointer<vtkRectilinearGrid>::New();
    grid->SetDimensions(pointsPerEdge, pointsPerEdge, pointsPerEdge);
    grid->SetXCoordinates(coordinates);
    grid->SetYCoordinates(coordinates);
    grid->SetZCoordinates(coordinates);
    addArrays(*grid, 0.0);
    return grid;
}

vtkSmartPointer<vtkStructuredGrid> sampleStructuredGrid() {
    const auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
    grid->SetDimensions(pointsPerEdge, pointsPerEdge, pointsPerEdge);
    grid->SetPoints(samplePoints());
    addArrays(*grid, 0.0);
    return grid;
}

vtkSmartPointer<vtkPolyData> sampleCube(const host::Vec3& center, double edge) {
    const vtkNew<vtkCubeSource> cube;
    cube->SetCenter(center.x, center.y, center.z);
    cube->SetXLength(edge);
    cube->SetYLength(edge);
    cube->SetZLength(edge);
    cube->Update();
    const vtkSmartPointer<vtkPolyData> data = cube->GetOutput();
    data->GetPointData()->Initialize();
    return data;
}

} // namespace corvane::test
