// The legend: a strip of the contour's colours with its scale.
#pragma once

#include "host/scene/annotations/FlatQuads.h"
#include "host/scene/annotations/TextItem.h"
#include "host/scene/layout/PixelRect.h"
#include "host/scene/style/ContourColors.h"

#include <vtkRenderer.h>

#include <memory>
#include <string>
#include <vector>

namespace corvane::scene {

/// Stands at the right edge of the frame, as high as half of it.
class ColorBar {
public:
    explicit ColorBar(vtkRenderer& renderer);

    void show(const ContourColors& colors, const std::string& title, const host::Color& textColor,
              const FrameArea& area);
    void hide();

private:
    struct Layout;

    void drawStrip(const Layout& layout, const ContourColors& colors, const host::Color& textColor);
    TextItem& label(std::size_t index);

    vtkRenderer& m_renderer;
    FlatQuads m_quads;
    TextItem m_title;
    std::vector<std::unique_ptr<TextItem>> m_labels;
};

} // namespace corvane::scene
