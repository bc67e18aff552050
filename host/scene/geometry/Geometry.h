// The polygons of plots, made from meshes.
#pragma once

#include "host/scene/data/SceneDataSet.h"

#include <vtkDataSet.h>
#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

#include <compare>
#include <string>

namespace corvane::scene {

struct SceneStatistics;

/// Everything that the polygons of one plot of one block depend on: equal recipes, equal polygons.
struct Recipe {
    enum class Kind { Surface, Slice, IsoSurface };

    MeshId mesh;
    Kind kind = Kind::Surface;
    int axis = 0;         ///< of a slice: 1, 2, 3
    double value = 0.0;   ///< of an isosurface; of a slice its position
    std::string variable; ///< of an isosurface, as styles write it

    friend bool operator==(const Recipe&, const Recipe&) = default;
    friend auto operator<=>(const Recipe&, const Recipe&) = default;
};

/// With normals, and with the arrays of the mesh. Empty when the plot does not meet the mesh, and
/// when the mesh is null.
vtkSmartPointer<vtkPolyData> buildGeometry(const Recipe& recipe, vtkDataSet* mesh,
                                           SceneStatistics& statistics);

/// The outside of a volume, or the surface itself, or lines, or points.
vtkSmartPointer<vtkPolyData> surfaceOf(vtkDataSet& mesh);
vtkSmartPointer<vtkPolyData> sliceOf(vtkDataSet& mesh, int axis, double position);
vtkSmartPointer<vtkPolyData> isoSurfaceOf(vtkDataSet& mesh, const std::string& variable,
                                          double value);

} // namespace corvane::scene
