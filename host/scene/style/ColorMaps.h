// Colour maps by name.
#pragma once

#include <vtkLookupTable.h>
#include <vtkSmartPointer.h>

#include <string>

namespace corvane::scene {

/// A table of 256 colours by name (see host::ContourStyle::colorMap, letter case ignored); unknown
/// names give Viridis. Its range is 0..1. NaN becomes grey.
vtkSmartPointer<vtkLookupTable> makeColorMap(const std::string& name);

} // namespace corvane::scene
