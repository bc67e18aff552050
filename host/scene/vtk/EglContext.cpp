#include "host/scene/vtk/EglContext.h"

#include "host/core/base/HostError.h"

// Keeps Xlib's macros (None, Status, Bool) out of this file.
#define EGL_NO_X11
#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GL/gl.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>
#include <vector>

namespace corvane::scene {

namespace {

[[noreturn]] void fail(const char* operation) {
    std::array<char, 16> code{};
    std::snprintf(code.data(), code.size(), "0x%x", static_cast<unsigned>(eglGetError()));
    throw host::HostError(
        std::string("No picture can be drawn: ") + operation + " failed with code " + code.data() +
        "; install Mesa's EGL and OpenGL drivers (libegl-mesa0, libgl1-mesa-dri), "
        "and see what corvane --system finds.");
}

template <typename Function>
Function eglFunction(const char* name) {
    return reinterpret_cast<Function>(eglGetProcAddress(name));
}

bool hasWord(const char* words, std::string_view word) {
    return words != nullptr && std::string_view(words).find(word) != std::string_view::npos;
}

/// Graphics cards, as far as their drivers know EGL's devices. Those that are drawn by software are
/// left to the surfaceless platform.
std::vector<EGLDeviceEXT> graphicsDevices() {
    const auto queryDevices = eglFunction<PFNEGLQUERYDEVICESEXTPROC>("eglQueryDevicesEXT");
    const auto queryString = eglFunction<PFNEGLQUERYDEVICESTRINGEXTPROC>("eglQueryDeviceStringEXT");
    std::array<EGLDeviceEXT, 32> found{};
    EGLint count = 0;
    if (queryDevices == nullptr || queryString == nullptr ||
        queryDevices(static_cast<EGLint>(found.size()), found.data(), &count) != EGL_TRUE) {
        return {};
    }
    std::vector<EGLDeviceEXT> devices(found.begin(), found.begin() + count);
    std::erase_if(devices, [queryString](EGLDeviceEXT device) {
        return hasWord(queryString(device, EGL_EXTENSIONS), "EGL_MESA_device_software");
    });
    return devices;
}

/// The best first.
std::vector<EGLDisplay> displays() {
    std::vector<EGLDisplay> displays;
    const auto platformDisplay =
        eglFunction<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
    if (platformDisplay != nullptr) {
        for (EGLDeviceEXT device : graphicsDevices()) {
            displays.push_back(platformDisplay(EGL_PLATFORM_DEVICE_EXT, device, nullptr));
        }
        displays.push_back(
            platformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr));
    }
    displays.push_back(eglGetDisplay(EGL_DEFAULT_DISPLAY));
    std::erase(displays, EGL_NO_DISPLAY);
    return displays;
}

EGLConfig anyConfig(EGLDisplay display) {
    constexpr std::array<EGLint, 5> wanted{EGL_SURFACE_TYPE, 0, EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT,
                                           EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    return eglChooseConfig(display, wanted.data(), &config, 1, &count) == EGL_TRUE && count > 0
               ? config
               : nullptr;
}

} // namespace

EglContext::EglContext() {
    const std::vector<EGLDisplay> found = displays();
    if (std::none_of(found.begin(), found.end(),
                     [this](EGLDisplay display) { return open(display); })) {
        fail(found.empty() ? "eglGetDisplay" : "eglCreateContext");
    }
}

bool EglContext::open(void* display) {
    // The whole process shares its displays, so that none is ever terminated.
    if (eglInitialize(display, nullptr, nullptr) != EGL_TRUE ||
        eglBindAPI(EGL_OPENGL_API) != EGL_TRUE) {
        return false;
    }
    const EGLConfig config = anyConfig(display);
    if (config == nullptr) {
        return false;
    }
    constexpr std::array<EGLint, 7> wanted{EGL_CONTEXT_MAJOR_VERSION,
                                           3,
                                           EGL_CONTEXT_MINOR_VERSION,
                                           2,
                                           EGL_CONTEXT_OPENGL_PROFILE_MASK,
                                           EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT,
                                           EGL_NONE};
    m_display = display;
    m_context = eglCreateContext(display, config, EGL_NO_CONTEXT, wanted.data());
    return m_context != EGL_NO_CONTEXT;
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

DrawingDriver EglContext::driver() {
    makeCurrent();
    const auto text = [](GLenum name) {
        const GLubyte* const words = glGetString(name);
        return words == nullptr ? std::string("unknown")
                                : std::string(reinterpret_cast<const char*>(words));
    };
    return {text(GL_RENDERER), text(GL_VERSION)};
}

} // namespace corvane::scene
