#include "host/app/system/DriverChoice.h"

#include "host/app/system/Bundle.h"
#include "host/scene/vtk/DrawingTrial.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace corvane::app {

namespace fs = std::filesystem;

namespace {

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool isUsable(const fs::path& device) {
    return access(device.c_str(), R_OK | W_OK) == 0;
}

/// Those that the kernel's drivers make for drawing without a screen, and NVIDIA's own.
std::vector<std::string> graphicsDevices() {
    std::vector<std::string> devices;
    std::error_code none;
    for (const fs::directory_entry& entry : fs::directory_iterator("/dev/dri", none)) {
        if (entry.path().filename().string().starts_with("renderD") && isUsable(entry.path())) {
            devices.push_back(entry.path());
        }
    }
    if (constexpr const char* nvidia = "/dev/nvidiactl"; isUsable(nvidia)) {
        devices.emplace_back(nvidia);
    }
    return devices;
}

} // namespace

Graphics Graphics::ofThisMachine() {
    return {.devices = graphicsDevices(),
            .driverFiles = variable(scene::driverFilesVariable),
            .wish = variable("CORVANE_DRIVER")};
}

DriverChoice chooseDriver(const Graphics& graphics) {
    if (graphics.wish == "bundled" || graphics.wish == "system") {
        return {graphics.wish == "bundled", "CORVANE_DRIVER asks for it"};
    }
    if (graphics.devices.empty() && graphics.driverFiles.empty()) {
        return {true, "no graphics device was found"};
    }
    if (!scene::canDraw(graphics.driverFiles)) {
        return {true, "the system's driver failed to draw"};
    }
    return {false, graphics.driverFiles.empty() ? "it draws on " + graphics.devices.front()
                                                : "it draws, and was asked for"};
}

DriverChoice settleDriver() {
    const auto bundle = Bundle::find();
    if (!bundle) {
        return {false, "it is the only one"};
    }
    DriverChoice choice = chooseDriver(Graphics::ofThisMachine());
    if (choice.isBundled) {
        bundle->useDriver();
    }
    return choice;
}

} // namespace corvane::app
