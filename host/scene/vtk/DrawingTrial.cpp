#include "host/scene/vtk/DrawingTrial.h"

#include "host/core/base/HostError.h"
#include "host/core/process/Helper.h"
#include "host/scene/vtk/EglContext.h"

#define GL_GLEXT_PROTOTYPES
#include <GL/gl.h>
#include <GL/glext.h>

#include <array>
#include <chrono>
#include <cstdlib>

namespace corvane::scene {

namespace {

using Pixel = std::array<GLubyte, 4>;

void bindPictureOfOnePixel() {
    GLuint frameBuffer = 0;
    GLuint picture = 0;
    glGenFramebuffers(1, &frameBuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, frameBuffer);
    glGenRenderbuffers(1, &picture);
    glBindRenderbuffer(GL_RENDERBUFFER, picture);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, 1, 1);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, picture);
}

bool drawsRightColor() {
    constexpr Pixel orange{255, 102, 0, 255};
    bindPictureOfOnePixel();
    glClearColor(1.0F, 0.4F, 0.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT);
    Pixel drawn{};
    glReadPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, drawn.data());
    return drawn == orange;
}

int tryDrawing(const host::TaskInput& input) {
    const std::string& driverFiles = input.arguments.at(0);
    if (!driverFiles.empty()) {
        setenv(driverFilesVariable, driverFiles.c_str(), 1);
    }
    EglContext context;
    context.makeCurrent();
    return drawsRightColor() ? EXIT_SUCCESS : EXIT_FAILURE;
}

const host::Task drawing("draw a picture of one pixel", tryDrawing);

} // namespace

bool canDraw(const std::string& driverFiles) {
    constexpr unsigned cpuSeconds = 20;
    constexpr std::chrono::seconds patience(60);
    try {
        host::Helper helper(drawing, {driverFiles}, {.cpuSeconds = cpuSeconds});
        const auto end = helper.waitFor(patience);
        return end && end->isExit() && end->exitCode == EXIT_SUCCESS;
    } catch (const host::HostError&) {
        return false;
    }
}

} // namespace corvane::scene
