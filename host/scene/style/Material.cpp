#include "host/scene/style/Material.h"

#include <algorithm>

namespace corvane::scene {

namespace {

constexpr double percent = 0.01;

} // namespace

vtkSmartPointer<vtkLight> makeLight() {
    const auto light = vtkSmartPointer<vtkLight>::New();
    light->SetLightTypeToCameraLight();
    light->SetPosition(0.25, 0.35, 1.0);
    light->SetFocalPoint(0.0, 0.0, 0.0);
    return light;
}

void setLight(vtkLight& light, const host::LightStyle& style) {
    light.SetIntensity(style.intensity * percent);
}

void setSurfaceMaterial(vtkProperty& property, const host::LightStyle& style) {
    property.SetAmbient(style.backgroundLight * percent);
    property.SetDiffuse(1.0);
    property.SetSpecular(0.15);
    property.SetSpecularPower(25.0);
}

void setFlatMaterial(vtkProperty& property, const host::LightStyle& style) {
    property.SetAmbient(flatBrightness(style));
    property.SetDiffuse(0.0);
    property.SetSpecular(0.0);
}

double flatBrightness(const host::LightStyle& style) {
    return std::min(1.0, (style.intensity + style.backgroundLight) * percent);
}

void setColor(vtkProperty& property, const host::Color& color) {
    property.SetColor(color.red, color.green, color.blue);
}

} // namespace corvane::scene
