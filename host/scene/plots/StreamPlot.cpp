#include "host/scene/plots/StreamPlot.h"

#include "host/scene/plots/StreamDashes.h"
#include "host/scene/plots/StreamMarkers.h"

namespace corvane::scene {

namespace {

constexpr double markerToTube = 2.4; ///< radius of the markers, in radii of the tubes

} // namespace

StreamPlot::StreamPlot(vtkRenderer& renderer) {
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

void StreamPlot::setGeometry(const PreparedGeometry::Streams& streams) {
    const auto& drawn = streams.tubes ? streams.tubes : streams.traces;
    if (m_drawn != drawn) { // VTK uploads whatever is set, even the same
        m_drawn = drawn;
        m_mapper->SetInputData(drawn);
    }
    if (m_traces != streams.traces) {
        m_traces = streams.traces;
        m_markersBuiltFrom.reset();
    }
}

void StreamPlot::show(const host::FrameStyle& style, const ContourColors& colors, double radius,
                      double lineWidth) {
    const host::StreamtraceStyle& traces = style.streamtraces;
    PlotAppearance appearance{traces.useContour, traces.color};
    appearance.isShaded = traces.tubes;
    appearance.lineWidth = lineWidth;
    applyAppearance(*m_actor, *m_mapper, *m_traces, appearance, colors, style.light);
    if (style.streamTiming.showDashes) {
        setDashes(*m_actor, style.streamTiming.timeAnchor, style.streamTiming.deltaTime);
    } else {
        setNoDashes(*m_actor);
    }
    m_actor->SetVisibility(1);

    if (!style.streamTiming.showMarkers) {
        return;
    }
    showMarkers(style.streamTiming, radius);
    // A plain colour stands out against traces that are coloured by a variable.
    appearance.isShaded = true;
    appearance.useContour = false;
    applyAppearance(*m_markerActor, *m_markerMapper, *m_markers, appearance, colors, style.light);
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
