// An OpenGL context that needs no display server and no window.
#pragma once

namespace corvane::scene {

/// Made through EGL, on Mesa's surfaceless platform where there is one. Nothing is ever shown:
/// whoever uses the context draws into framebuffer objects.
class EglContext {
public:
    EglContext(); ///< throws host::HostError when this machine has no usable OpenGL
    ~EglContext();
    EglContext(const EglContext&) = delete;
    EglContext& operator=(const EglContext&) = delete;

    void makeCurrent(); ///< for the calling thread; throws host::HostError
    bool isCurrent() const;
    void* native() const { return m_context; } ///< an EGLContext

private:
    void* m_display = nullptr;
    void* m_context = nullptr;
};

} // namespace corvane::scene
