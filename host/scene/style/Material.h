// How surfaces and lines answer to the light of a frame.
#pragma once

#include "host/core/page/FrameStyle.h"

#include <vtkLight.h>
#include <vtkProperty.h>
#include <vtkSmartPointer.h>

namespace corvane::scene {

/// The one light of a frame. It stands at the viewer's right shoulder and moves with the viewer.
vtkSmartPointer<vtkLight> makeLight();
void setLight(vtkLight& light, const host::LightStyle& style);

/// Lit by the light, never darker than the background light; black when both are out.
void setSurfaceMaterial(vtkProperty& property, const host::LightStyle& style);

/// For lines and points: no shading, but as dark as the light is.
void setFlatMaterial(vtkProperty& property, const host::LightStyle& style);

/// 0..1: what is left of a colour that is not shaded.
double flatBrightness(const host::LightStyle& style);

void setColor(vtkProperty& property, const host::Color& color);

} // namespace corvane::scene
