// An OpenGL context that needs no display server and no window.
#pragma once

#include <string>

namespace corvane::scene {

/// What draws, in the words of its driver.
struct DrawingDriver {
    std::string renderer; ///< such as "llvmpipe (LLVM 15.0.6, 256 bits)"
    std::string version;  ///< of OpenGL, and of the driver
};

/// Made through EGL: on a graphics device where one can be used, else on Mesa's surfaceless
/// platform, else on whatever display the system's EGL has. Nothing is ever shown: whoever uses the
/// context draws into framebuffer objects.
class EglContext {
public:
    EglContext(); ///< throws host::HostError when this machine has no usable OpenGL
    ~EglContext();
    EglContext(const EglContext&) = delete;
    EglContext& operator=(const EglContext&) = delete;

    void makeCurrent(); ///< for the calling thread; throws host::HostError
    bool isCurrent() const;
    void* native() const { return m_context; } ///< an EGLContext
    DrawingDriver driver();                    ///< makes the context current

private:
    bool open(void* display); ///< false: the display is of no use

    void* m_display = nullptr;
    void* m_context = nullptr;
};

} // namespace corvane::scene
