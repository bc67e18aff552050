// Small meshes whose values are known everywhere.
#pragma once

#include "host/core/page/Vec3.h"

#include <vtkImageData.h>
#include <vtkPolyData.h>
#include <vtkRectilinearGrid.h>
#include <vtkSmartPointer.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

namespace corvane::test {

/// All are boxes of 4 x 4 x 4 cells over 0..1 in each direction. Point arrays: "T" = x + offset,
/// "V" = (x, 2 y, -3 z). Cell array: "C" = number of the cell.
vtkSmartPointer<vtkUnstructuredGrid> sampleGrid(double offset = 0.0);
vtkSmartPointer<vtkImageData> sampleImage();
vtkSmartPointer<vtkRectilinearGrid> sampleRectilinearGrid();
vtkSmartPointer<vtkStructuredGrid> sampleStructuredGrid();

/// The outside of a cube: 6 squares, no arrays.
vtkSmartPointer<vtkPolyData> sampleCube(const host::Vec3& center, double edge);

} // namespace corvane::test
