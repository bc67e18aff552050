// VTK's render window on an offscreen OpenGL context, without any display server.
#pragma once

#include "host/scene/vtk/EglContext.h"

#include <vtkGenericOpenGLRenderWindow.h>

namespace corvane::scene {

/// Draws into framebuffer objects of any size up to largestSize().
class EglRenderWindow : public vtkGenericOpenGLRenderWindow {
public:
    static EglRenderWindow* New();

    /// Makes VTK use the context, which must outlive the window. To be called first. Throws
    /// host::HostError.
    void open(EglContext& context);
    /// The largest width or height, in pixels. After open().
    int largestSize();

    void MakeCurrent() override;
    bool IsCurrent() override;
    int SupportsOpenGL() override;
    vtkTypeBool IsDirect() override;
    void OpenGLInitContext() override;
    void* GetGenericContext() override;

protected:
    EglRenderWindow();
    ~EglRenderWindow() override;

private:
    EglRenderWindow(const EglRenderWindow&) = delete;
    void operator=(const EglRenderWindow&) = delete;

    EglContext* m_context = nullptr;
};

} // namespace corvane::scene
