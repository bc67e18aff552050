// VTK's drawing target on an OpenGL context of its own, without any display server.
#pragma once

#include "host/scene/vtk/EglContext.h"

#include <vtkGenericOpenGLRenderWindow.h>

namespace corvane::scene {

/// Draws into framebuffer objects of any size up to largestSize().
class EglRenderWindow : public vtkGenericOpenGLRenderWindow {
public:
    static EglRenderWindow* New();

    /// Readies VTK for the context, which must outlive the window. Call it first. Throws
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
