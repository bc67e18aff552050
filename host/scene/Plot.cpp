// One plot in one block: polygons, their colours and their material.
#include "host/scene/Plot.h"

#include "host/scene/Material.h"

#include <vtkCellData.h>
#include <vtkPointData.h>
#include <vtkProperty.h>

namespace corvane::scene {

namespace {

constexpr double meshLineGray = 0.15;

bool hasFaces(vtkPolyData& geometry) {
    return geometry.GetNumberOfPolys() > 0 || geometry.GetNumberOfStrips() > 0;
}

} // namespace

Plot::Plot() {
    m_mapper->SetColorModeToMapScalars();
    m_mapper->UseLookupTableScalarRangeOn();
    m_actor->SetMapper(m_mapper);
}

void Plot::setGeometry(const Recipe& recipe, const GeometrySource& source) {
    if (m_recipe == recipe)
        return;
    m_geometry = source(recipe);
    m_recipe = recipe;
    m_mapper->SetInputData(m_geometry);
}

void Plot::setLook(const Look& look, const ContourColors& colors, const host::LightStyle& light) {
    vtkProperty& property = *m_actor->GetProperty();
    setColor(property, look.color);
    property.SetOpacity(look.opacity);
    if (look.isShaded && hasFaces(*m_geometry))
        setSurfaceMaterial(property, light);
    else
        setFlatMaterial(property, light);
    property.SetEdgeVisibility(look.showMesh ? 1 : 0);
    const double edge = meshLineGray * flatBrightness(light);
    property.SetEdgeColor(edge, edge, edge);

    m_mapper->SetScalarVisibility(0);
    if (look.useContour)
        setContour(colors);
}

void Plot::setContour(const ContourColors& colors) {
    const char* const array = colors.variable().array.c_str();
    const bool ofPoints = m_geometry->GetPointData()->HasArray(array) != 0;
    const bool ofCells = m_geometry->GetCellData()->HasArray(array) != 0;
    if (!ofPoints && !ofCells)
        return;
    if (ofPoints)
        m_mapper->SetScalarModeToUsePointFieldData();
    else
        m_mapper->SetScalarModeToUseCellFieldData();
    // Values, not colours, are interpolated between points.
    m_mapper->SetInterpolateScalarsBeforeMapping(ofPoints ? 1 : 0);
    m_mapper->SelectColorArray(array);
    m_mapper->SetLookupTable(colors.table());
    m_mapper->SetScalarVisibility(1);
}

bool Plot::isEmpty() const {
    return m_geometry == nullptr || m_geometry->GetNumberOfCells() == 0;
}

} // namespace corvane::scene
