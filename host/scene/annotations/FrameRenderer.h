// VTK's renderer with correctly ordered translucent surfaces, and with lights of its own.
#pragma once

#include <vtkOpenGLRenderer.h>

namespace corvane::scene {

/// Peels translucent surfaces layer by layer from front to back. VTK's dual depth peeling works
/// from both sides at once, and loses the layers of the far side on Mesa's software rasterizer.
class FrameRenderer : public vtkOpenGLRenderer {
public:
    static FrameRenderer* New();

    void ReleaseGraphicsResources(vtkWindow* window) override;
    int UpdateLights() override;

protected:
    FrameRenderer();
    ~FrameRenderer() override = default;

private:
    void makePeelingPass();

    FrameRenderer(const FrameRenderer&) = delete;
    void operator=(const FrameRenderer&) = delete;
};

} // namespace corvane::scene
