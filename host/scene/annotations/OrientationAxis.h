// The small orientation axis in the corner of a frame.
#pragma once

#include "host/core/page/View3D.h"
#include "host/scene/annotations/FrameRenderer.h"
#include "host/scene/annotations/TextItem.h"
#include "host/scene/layout/PixelRect.h"

#include <vtkActor.h>
#include <vtkNew.h>

#include <array>

namespace corvane::scene {

/// Drawn on top of the frame by a renderer and with a light of its own: it turns with the view, and
/// stays bright when the light of the frame is dimmed.
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
