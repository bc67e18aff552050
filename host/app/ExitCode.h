// Exit codes of the program.
#pragma once

namespace corvane::app {

enum ExitCode { ExitDone = 0, ExitFailed = 1, ExitUsage = 2, ExitStopped = 130 };

} // namespace corvane::app
