// The streamtraces of one frame: tubes or lines, dashes and markers.
#include "host/scene/StreamPlot.h"

#include "host/scene/StreamDashes.h"
#include "host/scene/StreamMarkers.h"
#include "host/scene/VtkMessages.h"

#include <vtkTubeFilter.h>

namespace corvane::scene {

namespace {

constexpr int tubeSides = 12;
constexpr double markerToTube = 2.4; ///< radius of the markers, in radii of the tubes

} // namespace

StreamPlot::StreamPlot(vtkRenderer& renderer, SceneStatistics& statistics)
    : m_statistics(statistics) {
    m_actor->SetMapper(m_mapper);
    prepareDashes(*m_actor, *m_mapper);
    m_sphere->SetThetaResolution(20);
    m_sphere->SetPhiResolution(14);
    m_markerMapper->SetSourceConnection(m_sphere->GetOutputPort());
    m_markerMapper->ScalingOff();
    m_markerMapper->OrientOff();
    m_markerActor->SetMapper(m_markerMapper);
    renderer.AddActor(m_actor);
    renderer.AddActor(m_markerActor);
    hide();
}

void StreamPlot::hide() {
    m_actor->SetVisibility(0);
    m_markerActor->SetVisibility(0);
}

void StreamPlot::setTraces(const StreamRecipe& recipe, const MeshSource& source) {
    if (m_recipe == recipe)
        return;
    const VtkMessages silenced;
    m_traces = traceStreams(recipe, source());
    ++m_statistics.streamRuns;
    m_recipe = recipe;
    m_tubeRadius = 0.0;
    m_markersBuiltFrom.reset();
}

void StreamPlot::show(const host::FrameStyle& style, const ContourColors& colors, double radius,
                      double lineWidth) {
    const host::StreamtraceStyle& traces = style.streamtraces;
    if (traces.tubes)
        setTubes(radius);
    m_mapper->SetInputData(traces.tubes ? m_tubes : m_traces);
    Look look{traces.useContour, traces.color};
    look.isShaded = traces.tubes;
    look.lineWidth = lineWidth;
    applyLook(*m_actor, *m_mapper, *m_traces, look, colors, style.light);
    if (style.streamTiming.showDashes)
        setDashes(*m_actor, style.streamTiming.timeAnchor, style.streamTiming.deltaTime);
    else
        setNoDashes(*m_actor);
    m_actor->SetVisibility(1);

    if (!style.streamTiming.showMarkers)
        return;
    showMarkers(style.streamTiming, radius);
    // In the plain colour they stand out against traces that are coloured by values.
    look.isShaded = true;
    look.useContour = false;
    applyLook(*m_markerActor, *m_markerMapper, *m_markers, look, colors, style.light);
}

void StreamPlot::setTubes(double radius) {
    if (m_tubeRadius == radius)
        return;
    const VtkMessages silenced;
    const vtkNew<vtkTubeFilter> tubes;
    tubes->SetInputData(m_traces);
    tubes->SetRadius(radius);
    tubes->SetNumberOfSides(tubeSides);
    tubes->CappingOn();
    tubes->Update();
    m_tubes = tubes->GetOutput();
    ++m_statistics.tubeRuns;
    m_tubeRadius = radius;
}

void StreamPlot::showMarkers(const host::StreamTimingStyle& timing, double radius) {
    if (m_markersBuiltFrom != timing) {
        m_markers = markersOn(*m_traces, timing.timeAnchor, timing.deltaTime);
        m_markersBuiltFrom = timing;
        m_markerMapper->SetInputData(m_markers);
    }
    m_sphere->SetRadius(markerToTube * radius);
    m_markerActor->SetVisibility(m_markers->GetNumberOfPoints() > 0 ? 1 : 0);
}

} // namespace corvane::scene
