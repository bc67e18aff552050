#include "host/scene/annotations/FrameRenderer.h"

#include <vtkDepthPeelingPass.h>
#include <vtkLight.h>
#include <vtkLightCollection.h>
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

int FrameRenderer::UpdateLights() {
    // Frames share the programs of the graphics card, which get lights only when these are younger
    // than those of the frame before.
    vtkLightCollection* const lights = GetLights();
    lights->InitTraversal();
    while (vtkLight* const light = lights->GetNextItem()) {
        light->Modified();
    }
    return vtkOpenGLRenderer::UpdateLights();
}

void FrameRenderer::makePeelingPass() {
    const vtkNew<vtkTranslucentPass> layer;
    // The base class deletes it.
    DepthPeelingPass = vtkDepthPeelingPass::New();
    DepthPeelingPass->SetTranslucentPass(layer);
}

} // namespace corvane::scene
