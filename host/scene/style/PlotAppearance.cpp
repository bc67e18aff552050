#include "host/scene/style/PlotAppearance.h"

#include "host/scene/style/Material.h"

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
    if (!ofPoints && !ofCells) {
        return;
    }
    if (ofPoints) {
        mapper.SetScalarModeToUsePointFieldData();
    } else {
        mapper.SetScalarModeToUseCellFieldData();
    }
    // Values, not colours, are interpolated between points.
    mapper.SetInterpolateScalarsBeforeMapping(ofPoints ? 1 : 0);
    mapper.SetColorModeToMapScalars();
    mapper.UseLookupTableScalarRangeOn();
    mapper.SelectColorArray(array);
    mapper.SetLookupTable(colors.table());
    mapper.SetScalarVisibility(1);
}

} // namespace

void applyAppearance(vtkActor& actor, vtkMapper& mapper, vtkPolyData& geometry,
                     const PlotAppearance& appearance, const ContourColors& colors,
                     const host::LightStyle& light) {
    vtkProperty& property = *actor.GetProperty();
    setColor(property, appearance.color);
    property.SetOpacity(appearance.opacity);
    property.SetLineWidth(static_cast<float>(appearance.lineWidth));
    if (appearance.isShaded) {
        setSurfaceMaterial(property, light);
    } else {
        setFlatMaterial(property, light);
    }
    property.SetEdgeVisibility(appearance.showMesh ? 1 : 0);
    const double edge = meshLineGray * flatBrightness(light);
    property.SetEdgeColor(edge, edge, edge);

    mapper.SetScalarVisibility(0);
    if (appearance.useContour) {
        setContour(mapper, geometry, colors);
    }
}

} // namespace corvane::scene
