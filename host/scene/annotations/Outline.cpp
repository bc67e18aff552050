#include "host/scene/annotations/Outline.h"

#include "host/scene/style/Material.h"

#include <vtkProperty.h>

namespace corvane::scene {

Outline::Outline() {
    m_mapper->SetInputConnection(m_source->GetOutputPort());
    m_actor->SetMapper(m_mapper);
}

void Outline::hide() {
    m_actor->SetVisibility(0);
}

void Outline::show(const host::Bounds& box, const host::Color& color, const host::LightStyle& light,
                   double lineWidth) {
    m_source->SetBounds(box.min.x, box.max.x, box.min.y, box.max.y, box.min.z, box.max.z);
    vtkProperty& property = *m_actor->GetProperty();
    setColor(property, color);
    setFlatMaterial(property, light);
    property.SetLineWidth(static_cast<float>(lineWidth));
    m_actor->SetVisibility(box.isEmpty() ? 0 : 1);
}

} // namespace corvane::scene
