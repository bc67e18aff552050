// How the polygons of a plot look.
#pragma once

#include "host/core/page/FrameStyle.h"
#include "host/scene/ContourColors.h"

#include <vtkActor.h>
#include <vtkMapper.h>
#include <vtkPolyData.h>

namespace corvane::scene {

struct Look {
    bool useContour = false;
    host::Color color;
    double opacity = 1.0;
    bool showMesh = false;
    bool isShaded = true;   ///< otherwise colours are those of the legend from wherever one looks
    double lineWidth = 1.0; ///< pixels as drawn
};

/// Sets colours, material and light answer of an actor. Geometry tells which arrays there are.
void applyLook(vtkActor& actor, vtkMapper& mapper, vtkPolyData& geometry, const Look& look,
               const ContourColors& colors, const host::LightStyle& light);

} // namespace corvane::scene
