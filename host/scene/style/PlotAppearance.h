// How the polygons of a plot look.
#pragma once

#include "host/core/page/FrameStyle.h"
#include "host/scene/style/ContourColors.h"

#include <vtkActor.h>
#include <vtkMapper.h>
#include <vtkPolyData.h>

namespace corvane::scene {

struct PlotAppearance {
    bool useContour = false;
    host::Color color;
    double opacity = 1.0;
    bool showMesh = false;
    bool isShaded = true;   ///< unshaded colours equal those of the legend from any angle
    double lineWidth = 1.0; ///< pixels as drawn
};

/// Sets colours and material of an actor. The geometry says which arrays there are.
void applyAppearance(vtkActor& actor, vtkMapper& mapper, vtkPolyData& geometry,
                     const PlotAppearance& appearance, const ContourColors& colors,
                     const host::LightStyle& light);

} // namespace corvane::scene
