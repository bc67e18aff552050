// Whether a mesh can be worked with.
#pragma once

#include <vtkDataSet.h>

namespace corvane::scene {

/// False when cells refer to points that the mesh does not have, or when an array has another
/// number of values than the mesh has points or cells. Filters believe both without looking.
bool isSound(vtkDataSet& mesh);

} // namespace corvane::scene
