// Converts values of cells to values of points.
#pragma once

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

#include <string>

namespace corvane::scene {

/// withAllPointValues() if only the cells have the array, else the mesh itself.
vtkSmartPointer<vtkDataSet> withPointValues(vtkDataSet& mesh, const std::string& array);

/// The mesh with each array that only the cells have converted to the points, too.
vtkSmartPointer<vtkDataSet> withAllPointValues(vtkDataSet& mesh);

} // namespace corvane::scene
