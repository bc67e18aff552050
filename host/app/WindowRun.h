// A run with a window, from the options to the exit code.
#pragma once

#include "host/app/ExitCode.h"
#include "host/app/Options.h"

namespace corvane::app {

/// Opens the window, loads add-on and data, plays the macro, and returns when the window is closed.
ExitCode runWindow(const Options& options);

} // namespace corvane::app
