// One plot in one block: polygons and the actor that draws them.
#include "host/scene/Plot.h"

namespace corvane::scene {

namespace {

bool hasFaces(vtkPolyData& geometry) {
    return geometry.GetNumberOfPolys() > 0 || geometry.GetNumberOfStrips() > 0;
}

} // namespace

Plot::Plot() {
    m_actor->SetMapper(m_mapper);
}

void Plot::setGeometry(const vtkSmartPointer<vtkPolyData>& geometry) {
    if (m_geometry == geometry)
        return;
    m_geometry = geometry;
    m_mapper->SetInputData(m_geometry);
}

void Plot::setLook(Look look, const ContourColors& colors, const host::LightStyle& light) {
    look.isShaded = look.isShaded && hasFaces(*m_geometry);
    applyLook(*m_actor, *m_mapper, *m_geometry, look, colors, light);
}

bool Plot::isEmpty() const {
    return m_geometry == nullptr || m_geometry->GetNumberOfCells() == 0;
}

} // namespace corvane::scene
