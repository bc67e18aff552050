#include "host/scene/vtk/EglContext.h"

#include "host/core/base/HostError.h"

// Keeps Xlib's macros (None, Status, Bool) out of this file.
#define EGL_NO_X11
#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <array>
#include <cstdio>
#include <string>

namespace corvane::scene {

namespace {

[[noreturn]] void fail(const char* operation) {
    std::array<char, 16> code{};
    std::snprintf(code.data(), code.size(), "0x%x", static_cast<unsigned>(eglGetError()));
    throw host::HostError(std::string("No picture can be drawn: ") + operation +
                          " failed with code " + code.data() +
                          "; install Mesa's EGL and OpenGL drivers "
                          "(libegl-mesa0, libgl1-mesa-dri).");
}

EGLDisplay openDisplay() {
    const auto getPlatformDisplay = reinterpret_cast<PFNEGLGETPLATFORMDISPLAYEXTPROC>(
        eglGetProcAddress("eglGetPlatformDisplayEXT"));
    EGLDisplay display = EGL_NO_DISPLAY;
    if (getPlatformDisplay != nullptr) {
        display = getPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
    }
    if (display != EGL_NO_DISPLAY && eglInitialize(display, nullptr, nullptr) == EGL_TRUE) {
        return display;
    }
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    if (display == EGL_NO_DISPLAY || eglInitialize(display, nullptr, nullptr) != EGL_TRUE) {
        fail("eglInitialize");
    }
    return display;
}

EGLConfig chooseConfig(EGLDisplay display) {
    constexpr std::array<EGLint, 5> wanted{EGL_SURFACE_TYPE, 0, EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT,
                                           EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    if (eglChooseConfig(display, wanted.data(), &config, 1, &count) != EGL_TRUE || count == 0) {
        fail("eglChooseConfig");
    }
    return config;
}

} // namespace

EglContext::EglContext() : m_display(openDisplay()) {
    // The whole process shares the display, so it is never terminated.
    if (eglBindAPI(EGL_OPENGL_API) != EGL_TRUE) {
        fail("eglBindAPI");
    }
    constexpr std::array<EGLint, 7> wanted{EGL_CONTEXT_MAJOR_VERSION,
                                           3,
                                           EGL_CONTEXT_MINOR_VERSION,
                                           2,
                                           EGL_CONTEXT_OPENGL_PROFILE_MASK,
                                           EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT,
                                           EGL_NONE};
    m_context = eglCreateContext(m_display, chooseConfig(m_display), EGL_NO_CONTEXT, wanted.data());
    if (m_context == EGL_NO_CONTEXT) {
        fail("eglCreateContext");
    }
}

EglContext::~EglContext() {
    if (isCurrent()) {
        eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    }
    eglDestroyContext(m_display, m_context);
}

void EglContext::makeCurrent() {
    if (eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, m_context) != EGL_TRUE) {
        fail("eglMakeCurrent");
    }
}

bool EglContext::isCurrent() const {
    return eglGetCurrentContext() == m_context;
}

} // namespace corvane::scene
