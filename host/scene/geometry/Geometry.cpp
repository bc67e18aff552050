#include "host/scene/geometry/Geometry.h"

#include "host/scene/data/SceneStatistics.h"
#include "host/scene/vtk/VtkMessages.h"

namespace corvane::scene {

vtkSmartPointer<vtkPolyData> buildGeometry(const Recipe& recipe, vtkDataSet* mesh,
                                           SceneStatistics& statistics) {
    if (mesh == nullptr) {
        return vtkSmartPointer<vtkPolyData>::New();
    }
    // Filters may complain about odd cells: what they produce is drawn, and nothing is printed.
    const VtkMessages silenced;
    switch (recipe.kind) {
    case Recipe::Kind::Surface:
        ++statistics.surfaceRuns;
        return surfaceOf(*mesh);
    case Recipe::Kind::Slice:
        ++statistics.sliceRuns;
        return sliceOf(*mesh, recipe.axis, recipe.value);
    case Recipe::Kind::IsoSurface:
        ++statistics.contourRuns;
        return isoSurfaceOf(*mesh, recipe.variable, recipe.value);
    }
    return vtkSmartPointer<vtkPolyData>::New();
}

} // namespace corvane::scene
