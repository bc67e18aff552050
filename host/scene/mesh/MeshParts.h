// The meshes of a data object.
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <vtkDataObject.h>

namespace corvane::scene {

/// The object itself if it is a mesh, or the meshes in a tree of blocks, named by their paths
/// ("engine/inlet"). Meshes without points, and everything that is no mesh, are left out.
std::vector<MeshPart> meshParts(vtkDataObject* object);

/// The largest dimension of the cells: 3, 2, 1 or 0.
int meshDimension(vtkDataSet& mesh);

} // namespace corvane::scene
