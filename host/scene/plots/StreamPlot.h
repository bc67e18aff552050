// The streamtraces of one frame: tubes or lines, dashes and markers.
#pragma once

#include "host/scene/ahead/PreparedGeometry.h"
#include "host/scene/style/PlotAppearance.h"

#include <vtkActor.h>
#include <vtkGlyph3DMapper.h>
#include <vtkNew.h>
#include <vtkPolyDataMapper.h>
#include <vtkRenderer.h>
#include <vtkSphereSource.h>

#include <optional>

namespace corvane::scene {

/// A new time anchor moves dashes and markers and rebuilds nothing else.
class StreamPlot {
public:
    explicit StreamPlot(vtkRenderer& renderer);

    void setGeometry(const PreparedGeometry::Streams& streams);
    /// radius: of tubes, > 0, in data coordinates; markers are sized relative to it. lineWidth: in
    /// pixels as drawn.
    void show(const host::FrameStyle& style, const ContourColors& colors, double radius,
              double lineWidth);
    void hide();
    bool isEmpty() const { return m_traces == nullptr || m_traces->GetNumberOfLines() == 0; }

private:
    void showMarkers(const host::StreamTimingStyle& timing, double radius);

    PreparedGeometry::Polygons m_traces;
    PreparedGeometry::Polygons m_drawn; ///< the traces themselves, or tubes around them
    vtkNew<vtkPolyDataMapper> m_mapper;
    vtkNew<vtkActor> m_actor;

    std::optional<host::StreamTimingStyle> m_markersBuiltFrom;
    vtkSmartPointer<vtkPolyData> m_markers;
    vtkNew<vtkSphereSource> m_sphere;
    vtkNew<vtkGlyph3DMapper> m_markerMapper;
    vtkNew<vtkActor> m_markerActor;
};

} // namespace corvane::scene
