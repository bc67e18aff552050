// Who draws: a driver of the system, or the one that comes with the program.
#pragma once

#include <string>
#include <vector>

namespace corvane::app {

/// What of a machine decides it.
struct Graphics {
    /// Files of graphics devices that this user may open.
    std::vector<std::string> devices{};
    /// What the user tells EGL to choose from: files with colons between; empty: nothing special.
    std::string driverFiles{};
    /// CORVANE_DRIVER: "system" or "bundled"; anything else: no wish.
    std::string wish{};

    static Graphics ofThisMachine();
};

struct DriverChoice {
    bool isBundled = false;
    std::string reason; ///< for people: "no graphics device was found"
};

/// The bundled driver needs no device and always works, a driver of the system may be faster. So
/// that is taken where there is something to drive, or where the user asks for it, and only after
/// it has drawn a picture in a process of its own.
DriverChoice chooseDriver(const Graphics& graphics);

/// Chooses for this process. To be called before anything is drawn; without a bundle there is
/// nothing to choose.
DriverChoice settleDriver();

} // namespace corvane::app
