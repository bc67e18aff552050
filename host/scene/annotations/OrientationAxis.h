// The little axis cross in the corner of a frame.
#pragma once

#include "host/core/page/View3D.h"
#include "host/scene/annotations/FrameRenderer.h"
#include "host/scene/annotations/TextItem.h"
#include "host/scene/layout/PixelRect.h"

#include <vtkActor.h>
#include <vtkNew.h>

#include <array>

namespace corvane::scene {

/// Drawn over the frame by a renderer of its own, with its own light: it turns with the view and
/// never fades.
class OrientationAxis {
public:
    OrientationAxis();

    void show(const host::View3D& view, const host::Color& textColor, const FrameArea& area,
              int pictureWidth, int pictureHeight);
    void hide();

    vtkRenderer* renderer() const { return m_renderer; }

private:
    vtkNew<FrameRenderer> m_renderer;
    std::array<vtkNew<vtkActor>, 3> m_arrows;
    std::array<TextItem, 3> m_labels;
};

} // namespace corvane::scene
