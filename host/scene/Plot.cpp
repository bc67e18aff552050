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

void Plot::setGeometry(const Recipe& recipe, const GeometrySource& source) {
    if (m_recipe == recipe)
        return;
    m_geometry = source(recipe);
    m_recipe = recipe;
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
