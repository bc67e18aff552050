// Values at the points of a mesh, wherever the file has them.
#pragma once

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

#include <string>

namespace corvane::scene {

/// The mesh itself, or, when only its cells have the array, withAllPointValues().
vtkSmartPointer<vtkDataSet> withPointValues(vtkDataSet& mesh, const std::string& array);

/// With each array that only the cells have carried to the points as well.
vtkSmartPointer<vtkDataSet> withAllPointValues(vtkDataSet& mesh);

} // namespace corvane::scene
