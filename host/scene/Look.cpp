// How the polygons of a plot look.
#include "host/scene/Look.h"

#include "host/scene/Material.h"

#include <vtkCellData.h>
#include <vtkPointData.h>
#include <vtkProperty.h>

namespace corvane::scene {

namespace {

constexpr double meshLineGray = 0.15;

void setContour(vtkMapper& mapper, vtkPolyData& geometry, const ContourColors& colors) {
    const char* const array = colors.variable().array.c_str();
    const bool ofPoints = geometry.GetPointData()->HasArray(array) != 0;
    const bool ofCells = geometry.GetCellData()->HasArray(array) != 0;
    if (!ofPoints && !ofCells)
        return;
    if (ofPoints)
        mapper.SetScalarModeToUsePointFieldData();
    else
        mapper.SetScalarModeToUseCellFieldData();
    // Values, not colours, are interpolated between points.
    mapper.SetInterpolateScalarsBeforeMapping(ofPoints ? 1 : 0);
    mapper.SetColorModeToMapScalars();
    mapper.UseLookupTableScalarRangeOn();
    mapper.SelectColorArray(array);
    mapper.SetLookupTable(colors.table());
    mapper.SetScalarVisibility(1);
}

} // namespace

void applyLook(vtkActor& actor, vtkMapper& mapper, vtkPolyData& geometry, const Look& look,
               const ContourColors& colors, const host::LightStyle& light) {
    vtkProperty& property = *actor.GetProperty();
    setColor(property, look.color);
    property.SetOpacity(look.opacity);
    property.SetLineWidth(static_cast<float>(look.lineWidth));
    if (look.isShaded)
        setSurfaceMaterial(property, light);
    else
        setFlatMaterial(property, light);
    property.SetEdgeVisibility(look.showMesh ? 1 : 0);
    const double edge = meshLineGray * flatBrightness(light);
    property.SetEdgeColor(edge, edge, edge);

    mapper.SetScalarVisibility(0);
    if (look.useContour)
        setContour(mapper, geometry, colors);
}

} // namespace corvane::scene
