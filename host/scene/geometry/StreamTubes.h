// Tubes around streamtraces.
#pragma once

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

namespace corvane::scene {

/// With the arrays of the traces and normals. radius: data coordinates, > 0.
vtkSmartPointer<vtkPolyData> tubesAround(vtkPolyData& traces, double radius);

} // namespace corvane::scene
