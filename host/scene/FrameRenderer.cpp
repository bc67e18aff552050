// VTK's renderer, with see-through surfaces in the right order.
#include "host/scene/FrameRenderer.h"

#include <vtkDepthPeelingPass.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkTranslucentPass.h>

namespace corvane::scene {

namespace {

/// Each layer costs one more drawing of what can be seen through; peeling ends when none is left.
constexpr int mostLayers = 16;

} // namespace

vtkStandardNewMacro(FrameRenderer);

FrameRenderer::FrameRenderer() {
    SetMaximumNumberOfPeels(mostLayers);
    SetOcclusionRatio(0.0);
    makePeelingPass();
}

void FrameRenderer::ReleaseGraphicsResources(vtkWindow* window) {
    vtkOpenGLRenderer::ReleaseGraphicsResources(window);
    // VTK's pass would draw on into the textures that it has just freed.
    DepthPeelingPass->Delete();
    makePeelingPass();
}

void FrameRenderer::makePeelingPass() {
    const vtkNew<vtkTranslucentPass> layer;
    // The base class deletes it.
    DepthPeelingPass = vtkDepthPeelingPass::New();
    DepthPeelingPass->SetTranslucentPass(layer);
}

} // namespace corvane::scene
