// Points that travel along traces.
#pragma once

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

namespace corvane::scene {

/// The points of the traces where the integration time is anchor + k interval for a whole number k,
/// with the arrays of the traces interpolated. More than about 20,000 could not be told
/// apart: then only every second, third … k has a marker.
vtkSmartPointer<vtkPolyData> markersOn(vtkPolyData& traces, double anchor, double interval);

} // namespace corvane::scene
