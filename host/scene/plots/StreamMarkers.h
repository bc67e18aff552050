// Points that travel along traces.
#pragma once

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

namespace corvane::scene {

/// The points of the traces where the integration time is anchor + k interval for a whole number k,
/// with the arrays of the traces interpolated. Where that would be more than about 20,000, which
/// cannot be told apart, markers of every second, third … k stand there.
vtkSmartPointer<vtkPolyData> markersOn(vtkPolyData& traces, double anchor, double interval);

} // namespace corvane::scene
