// Validates meshes.
#pragma once

#include <vtkDataSet.h>

namespace corvane::scene {

/// False when cells refer to points that the mesh does not have, or when an array has another
/// number of values than the mesh has points or cells. Filters do not check either.
bool isSound(vtkDataSet& mesh);

} // namespace corvane::scene
