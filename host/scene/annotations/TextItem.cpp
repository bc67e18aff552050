#include "host/scene/annotations/TextItem.h"

#include <vtkStdString.h>
#include <vtkTextProperty.h>
#include <vtkTextRenderer.h>

#include <array>

namespace corvane::scene {

namespace {

/// One point is one pixel: see EglRenderWindow.
constexpr int dotsPerInch = 72;

void setAppearance(vtkTextProperty& property, const TextAppearance& appearance) {
    property.SetFontFamilyToArial();
    property.SetFontSize(appearance.size);
    property.SetBold(appearance.bold ? 1 : 0);
    property.SetColor(appearance.color.red, appearance.color.green, appearance.color.blue);
    property.SetJustification(static_cast<int>(appearance.horizontal));
    property.SetVerticalJustification(static_cast<int>(appearance.vertical));
}

static_assert(VTK_TEXT_LEFT == 0 && VTK_TEXT_CENTERED == 1 && VTK_TEXT_RIGHT == 2 &&
              VTK_TEXT_BOTTOM == 0 && VTK_TEXT_TOP == 2);

} // namespace

void TextItem::show(const std::string& text, double x, double y, const TextAppearance& appearance) {
    m_actor->SetInput(text.c_str());
    setAppearance(*m_actor->GetTextProperty(), appearance);
    m_actor->SetPosition(x, y);
    m_actor->SetVisibility(text.empty() ? 0 : 1);
}

void TextItem::hide() {
    m_actor->SetVisibility(0);
}

double TextItem::widthOf(const std::string& text, const TextAppearance& appearance) {
    if (text.empty()) {
        return 0.0;
    }
    const vtkNew<vtkTextProperty> property;
    setAppearance(*property, appearance);
    std::array<int, 4> box{};
    vtkTextRenderer::GetInstance()->GetBoundingBox(property, text, box.data(), dotsPerInch);
    return box[1] - box[0] + 1;
}

} // namespace corvane::scene
