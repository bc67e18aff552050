// A run without a window, from the options to the exit code.
#pragma once

#include "host/app/Options.h"

namespace corvane::app {

/// Exit codes of the program.
enum ExitCode { ExitDone = 0, ExitFailed = 1, ExitUsage = 2, ExitStopped = 130 };

/// Loads add-on and data, plays the macro, flies. Says on standard error what went wrong.
ExitCode runBatch(const Options& options);

} // namespace corvane::app
