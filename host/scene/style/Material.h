// How surfaces and lines reflect the light of a frame.
#pragma once

#include "host/core/page/FrameStyle.h"

#include <vtkLight.h>
#include <vtkProperty.h>
#include <vtkSmartPointer.h>

namespace corvane::scene {

/// The only light of a frame. It is at the viewer's right shoulder, and moves with the viewer.
vtkSmartPointer<vtkLight> makeLight();
void setLight(vtkLight& light, const host::LightStyle& style);

/// Lit by the light, never darker than the background light; black when both are out.
void setSurfaceMaterial(vtkProperty& property, const host::LightStyle& style);

/// For lines and points: unshaded, but dimmed with the light.
void setFlatMaterial(vtkProperty& property, const host::LightStyle& style);

/// 0..1: the factor by which unshaded colours are dimmed.
double flatBrightness(const host::LightStyle& style);

void setColor(vtkProperty& property, const host::Color& color);

} // namespace corvane::scene
