// The meshes of a data object.
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <vtkDataObject.h>

namespace corvane::scene {

/// The object itself when it is a mesh, or the meshes in a tree of blocks, named after their
/// branches ("engine/inlet"). What is no mesh, and meshes without points, are left out.
std::vector<MeshPart> meshParts(vtkDataObject* object);

/// The largest dimension of the cells: 3, 2, 1 or 0.
int meshDimension(vtkDataSet& mesh);

} // namespace corvane::scene
