// Lines along a vector variable.
#pragma once

#include "host/scene/data/SceneDataSet.h"
#include "host/scene/geometry/StreamSeeds.h"

#include <vtkDataSet.h>
#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

#include <string>
#include <tuple>
#include <vector>

namespace corvane::scene {

/// The point array of traces with the integration time from the seed; negative upstream.
inline constexpr const char* integrationTimeName = "IntegrationTime";

/// Everything that traces depend on: equal recipes give equal lines.
struct StreamRecipe {
    std::vector<MeshId> meshes;
    std::string variable;
    StreamSeeds seeds;
    int direction = 3;

    friend bool operator==(const StreamRecipe&, const StreamRecipe&) = default;
    /// Any order, for maps.
    friend bool operator<(const StreamRecipe& a, const StreamRecipe& b) {
        return std::tie(a.meshes, a.variable, a.seeds, a.direction) <
               std::tie(b.meshes, b.variable, b.seeds, b.direction);
    }
};

StreamRecipe streamRecipe(const host::StreamtraceStyle& style, std::vector<MeshId> meshes);

/// Poly-lines of two or more distinct points, with integration time and the arrays that all meshes
/// with the vector have; arrays of cells are carried to the points. A trace runs from mesh to mesh.
/// Seeds outside of all meshes give none.
vtkSmartPointer<vtkPolyData> traceStreams(const StreamRecipe& recipe,
                                          const std::vector<vtkSmartPointer<vtkDataSet>>& meshes);

} // namespace corvane::scene
