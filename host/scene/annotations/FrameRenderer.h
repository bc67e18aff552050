// VTK's renderer, with see-through surfaces in the right order, and lights of its own.
#pragma once

#include <vtkOpenGLRenderer.h>

namespace corvane::scene {

/// Peels see-through surfaces layer by layer, from the viewer on. VTK would peel from both sides
/// at once, which loses the layers from the far side on Mesa's software rasteriser.
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
