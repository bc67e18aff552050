#include "host/scene/vtk/EglRenderWindow.h"

#include "host/core/base/HostError.h"
#include "host/scene/vtk/VtkMessages.h"

#include <vtkObjectFactory.h>
#include <vtk_glew.h>

#include <algorithm>
#include <array>

namespace corvane::scene {

vtkStandardNewMacro(EglRenderWindow);

EglRenderWindow::EglRenderWindow() {
    SetOffScreenRendering(1);
    SetReadyForRendering(true);
    SetFrameBlitModeToNoBlit();
    SetMapped(1);
    // At this resolution a font of n points is n pixels high.
    SetDPI(72);
    // With a software rasterizer multisampling costs more than supersampling, and it breaks
    // translucent surfaces.
    SetMultiSamples(0);
}

EglRenderWindow::~EglRenderWindow() {
    // The base classes release OpenGL resources, but can no longer make the context current.
    if (m_context != nullptr) {
        m_context->makeCurrent();
    }
    Finalize();
}

void EglRenderWindow::open(EglContext& context) {
    m_context = &context;
    MakeCurrent();
    OpenGLInit();
    if (!GlewInitValid) {
        throw host::HostError("No picture can be drawn: the OpenGL functions cannot be loaded; "
                              "install Mesa's OpenGL drivers (libgl1-mesa-dri).");
    }
}

int EglRenderWindow::largestSize() {
    MakeCurrent();
    GLint texture = 0;
    std::array<GLint, 2> viewport{};
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &texture);
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, viewport.data());
    GLint renderbuffer = 0;
    glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &renderbuffer);
    return std::min({texture, renderbuffer, viewport[0], viewport[1]});
}

void EglRenderWindow::MakeCurrent() {
    if (!m_context->isCurrent()) {
        m_context->makeCurrent();
    }
}

bool EglRenderWindow::IsCurrent() {
    return m_context != nullptr && m_context->isCurrent();
}

int EglRenderWindow::SupportsOpenGL() {
    return 1;
}

vtkTypeBool EglRenderWindow::IsDirect() {
    return 1;
}

void* EglRenderWindow::GetGenericContext() {
    return m_context->native();
}

void EglRenderWindow::OpenGLInitContext() {
    // GLEW was built for GLX. It loads every function, then reports that there is no GLX display,
    // and VTK gives up. What counts is whether the functions are there.
    const VtkMessages silenced;
    Superclass::OpenGLInitContext();
    GlewInitValid = glGenVertexArrays != nullptr && glFramebufferTexture != nullptr;
    Initialized = GlewInitValid;
}

} // namespace corvane::scene
