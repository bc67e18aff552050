// What the program is made of and what it found on this machine, for people who ask why something
// does not work.
#pragma once

#include <string>

namespace corvane::app {

struct SystemReport {
    std::string text;    ///< lines
    bool canDraw = true; ///< pictures can be made here
};

/// Chooses the driver and tries to draw, which takes as long as starting to draw does.
SystemReport reportSystem();

} // namespace corvane::app
