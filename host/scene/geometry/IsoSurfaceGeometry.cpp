// Surfaces of constant value in meshes.
#include "host/scene/geometry/Geometry.h"

#include "host/scene/data/VariableRef.h"
#include "host/scene/mesh/PointValues.h"

#include <vtkCellData.h>
#include <vtkContour3DLinearGrid.h>
#include <vtkContourFilter.h>
#include <vtkDataArray.h>
#include <vtkDoubleArray.h>
#include <vtkFlyingEdges3D.h>
#include <vtkImageData.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPolyDataNormals.h>
#include <vtkUnstructuredGrid.h>

#include <array>
#include <cmath>

namespace corvane::scene {

namespace {

constexpr const char* isoArrayName = "vtkCorvaneIsoScalar";

vtkSmartPointer<vtkDataArray> scalarOf(vtkDataArray& vector, int component) {
    const auto scalar = vtkSmartPointer<vtkDoubleArray>::New();
    scalar->SetNumberOfTuples(vector.GetNumberOfTuples());
    std::array<double, 3> v{};
    for (vtkIdType i = 0; i < vector.GetNumberOfTuples(); ++i) {
        vector.GetTuple(i, v.data());
        scalar->SetValue(i, component < 0 ? std::hypot(v[0], v[1], v[2])
                                          : v[static_cast<std::size_t>(component)]);
    }
    return scalar;
}

/// Adds the scalar to contour by, or returns false when the mesh has none.
bool setIsoScalar(vtkDataSet& mesh, const VariableRef& variable) {
    vtkDataArray* const array = mesh.GetPointData()->GetArray(variable.array.c_str());
    if (array == nullptr) {
        return false;
    }
    vtkSmartPointer<vtkDataArray> scalar;
    if (array->GetNumberOfComponents() == 3) {
        scalar = scalarOf(*array, variable.component);
    } else {
        scalar.TakeReference(array->NewInstance());
        scalar->ShallowCopy(array);
    }
    scalar->SetName(isoArrayName);
    mesh.GetPointData()->SetScalars(scalar);
    return true;
}

vtkSmartPointer<vtkPolyData> contourLinearGrid(vtkDataSet& mesh, double value) {
    const vtkNew<vtkContour3DLinearGrid> contour;
    contour->SetInputData(&mesh);
    contour->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_POINTS, isoArrayName);
    contour->SetValue(0, value);
    contour->MergePointsOn();
    contour->InterpolateAttributesOn();
    contour->ComputeNormalsOn();
    contour->Update();
    return vtkPolyData::SafeDownCast(contour->GetOutputDataObject(0));
}

vtkSmartPointer<vtkPolyData> contourImage(vtkDataSet& mesh, double value) {
    const vtkNew<vtkFlyingEdges3D> contour;
    contour->SetInputData(&mesh);
    contour->SetValue(0, value);
    contour->ComputeNormalsOn();
    contour->InterpolateAttributesOn();
    contour->Update();
    return contour->GetOutput();
}

vtkSmartPointer<vtkPolyData> contourAny(vtkDataSet& mesh, double value) {
    const vtkNew<vtkContourFilter> contour;
    contour->SetInputData(&mesh);
    contour->SetValue(0, value);
    contour->ComputeNormalsOff();
    const vtkNew<vtkPolyDataNormals> normals;
    normals->SetInputConnection(contour->GetOutputPort());
    normals->SplittingOff();
    normals->Update();
    return normals->GetOutput();
}

} // namespace

vtkSmartPointer<vtkPolyData> isoSurfaceOf(vtkDataSet& mesh, const std::string& variable,
                                          double value) {
    const VariableRef reference = variableRef(variable);
    const auto source = withPointValues(mesh, reference.array);
    const auto copy = vtkSmartPointer<vtkDataSet>::Take(source->NewInstance());
    copy->ShallowCopy(source);
    if (!setIsoScalar(*copy, reference)) {
        return vtkSmartPointer<vtkPolyData>::New();
    }

    // The fast algorithms drop cell arrays, which plots may be coloured by.
    const bool hasCellArrays = copy->GetCellData()->GetNumberOfArrays() > 0;
    vtkSmartPointer<vtkPolyData> surface;
    if (!hasCellArrays && vtkContour3DLinearGrid::CanFullyProcessDataObject(copy, isoArrayName)) {
        surface = contourLinearGrid(*copy, value);
    } else if (!hasCellArrays && vtkImageData::SafeDownCast(copy) != nullptr) {
        surface = contourImage(*copy, value);
    } else {
        surface = contourAny(*copy, value);
    }
    surface->GetPointData()->RemoveArray(isoArrayName);
    return surface;
}

} // namespace corvane::scene
