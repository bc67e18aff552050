#include "host/scene/annotations/FrameRenderer.h"

#include <vtkDepthPeelingPass.h>
#include <vtkLight.h>
#include <vtkLightCollection.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkTranslucentPass.h>

namespace corvane::scene {

namespace {

/// Each layer draws the translucent geometry once more; peeling ends early when no layer is left.
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
    // VTK's pass would go on drawing into the textures that it has just freed.
    DepthPeelingPass->Delete();
    makePeelingPass();
}

int FrameRenderer::UpdateLights() {
    // Frames share shader programs, and VTK uploads lights to a program only when they were
    // modified after those uploaded last.
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
