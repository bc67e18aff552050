// The streamtraces of one frame: tubes or lines, dashes and markers.
#pragma once

#include "host/scene/Look.h"
#include "host/scene/SceneStatistics.h"
#include "host/scene/StreamTraces.h"

#include <vtkActor.h>
#include <vtkGlyph3DMapper.h>
#include <vtkNew.h>
#include <vtkPolyDataMapper.h>
#include <vtkRenderer.h>
#include <vtkSphereSource.h>

#include <functional>
#include <optional>

namespace corvane::scene {

/// Keeps what it was built from: a new anchor moves dashes and markers and builds nothing else.
class StreamPlot {
public:
    using Meshes = std::vector<vtkSmartPointer<vtkDataSet>>;
    /// Reads the meshes of a recipe.
    using MeshSource = std::function<Meshes()>;

    StreamPlot(vtkRenderer& renderer, SceneStatistics& statistics);

    /// Calls source only when the recipe is another one than before.
    void setTraces(const StreamRecipe& recipe, const MeshSource& source);
    /// radius: of the tubes, > 0, data coordinates. lineWidth: pixels as drawn.
    void show(const host::FrameStyle& style, const ContourColors& colors, double radius,
              double lineWidth);
    void hide();
    bool isEmpty() const { return m_traces == nullptr || m_traces->GetNumberOfLines() == 0; }

private:
    void setTubes(double radius);
    void showMarkers(const host::StreamTimingStyle& timing, double radius);

    SceneStatistics& m_statistics;
    std::optional<StreamRecipe> m_recipe;
    vtkSmartPointer<vtkPolyData> m_traces;

    double m_tubeRadius = 0.0; ///< of m_tubes; 0 when there are none
    vtkSmartPointer<vtkPolyData> m_tubes;
    vtkNew<vtkPolyDataMapper> m_mapper;
    vtkNew<vtkActor> m_actor;

    std::optional<host::StreamTimingStyle> m_markersBuiltFrom;
    vtkSmartPointer<vtkPolyData> m_markers;
    vtkNew<vtkSphereSource> m_sphere;
    vtkNew<vtkGlyph3DMapper> m_markerMapper;
    vtkNew<vtkActor> m_markerActor;
};

} // namespace corvane::scene
