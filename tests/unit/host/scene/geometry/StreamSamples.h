// A flow whose streamtraces are known.
#pragma once

#include "host/core/page/Vec3.h"
#include "host/scene/geometry/StreamTraces.h"

#include <vtkSmartPointer.h>
#include <vtkUnstructuredGrid.h>

namespace corvane::test {

inline constexpr double flowSpeed = 0.5;

/// The box of sampleGrid() with a flow along +x everywhere, "flow", given at the points or at the
/// cells.
vtkSmartPointer<vtkUnstructuredGrid> flowBox(bool atCells = false);

/// Traces of it; see host::StreamtraceStyle.
scene::StreamRecipe streamRecipe(const host::Vec3& start, const host::Vec3& end, int count,
                                 int direction);

} // namespace corvane::test
