#include "host/scene/plots/PlotActor.h"

namespace corvane::scene {

namespace {

bool hasFaces(vtkPolyData& geometry) {
    return geometry.GetNumberOfPolys() > 0 || geometry.GetNumberOfStrips() > 0;
}

} // namespace

PlotActor::PlotActor() {
    m_actor->SetMapper(m_mapper);
}

void PlotActor::setGeometry(const vtkSmartPointer<vtkPolyData>& geometry) {
    if (m_geometry == geometry) {
        return;
    }
    m_geometry = geometry;
    m_mapper->SetInputData(m_geometry);
}

void PlotActor::setAppearance(PlotAppearance appearance, const ContourColors& colors,
                              const host::LightStyle& light) {
    appearance.isShaded = appearance.isShaded && hasFaces(*m_geometry);
    applyAppearance(*m_actor, *m_mapper, *m_geometry, appearance, colors, light);
}

bool PlotActor::isEmpty() const {
    return m_geometry == nullptr || m_geometry->GetNumberOfCells() == 0;
}

} // namespace corvane::scene
