// A run without a window, from the options to the exit code.
#pragma once

#include "host/app/ExitCode.h"
#include "host/app/Options.h"

namespace corvane::app {

/// Loads add-on and data, plays the macro, flies. Says on standard error what went wrong.
ExitCode runBatch(const Options& options);

} // namespace corvane::app
