#include "host/scene/mesh/PointValues.h"

#include <vtkCellData.h>
#include <vtkCellDataToPointData.h>
#include <vtkDataSetAttributes.h>
#include <vtkNew.h>
#include <vtkPointData.h>

#include <vector>

namespace corvane::scene {

namespace {

/// Ghost marks of cells cannot be averaged.
bool isCarried(vtkDataSet& mesh, const std::string& array) {
    return array != vtkDataSetAttributes::GhostArrayName() &&
           mesh.GetPointData()->HasArray(array.c_str()) == 0 &&
           mesh.GetCellData()->GetArray(array.c_str()) != nullptr;
}

vtkSmartPointer<vtkDataSet> carried(vtkDataSet& mesh, const std::vector<std::string>& arrays) {
    const vtkNew<vtkCellDataToPointData> toPoints;
    toPoints->SetInputData(&mesh);
    toPoints->PassCellDataOn();
    toPoints->ProcessAllArraysOff();
    for (const std::string& array : arrays) {
        toPoints->AddCellDataArray(array.c_str());
    }
    toPoints->Update();
    return toPoints->GetOutput();
}

} // namespace

vtkSmartPointer<vtkDataSet> withPointValues(vtkDataSet& mesh, const std::string& array) {
    if (!isCarried(mesh, array)) {
        return &mesh;
    }
    return withAllPointValues(mesh);
}

vtkSmartPointer<vtkDataSet> withAllPointValues(vtkDataSet& mesh) {
    std::vector<std::string> arrays;
    for (int i = 0; i < mesh.GetCellData()->GetNumberOfArrays(); ++i) {
        const char* const name = mesh.GetCellData()->GetArrayName(i);
        if (name != nullptr && isCarried(mesh, name)) {
            arrays.emplace_back(name);
        }
    }
    if (arrays.empty()) {
        return &mesh;
    }
    return carried(mesh, arrays);
}

} // namespace corvane::scene
