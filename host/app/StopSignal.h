// Ctrl-C and the end signal of a batch system, as a wish that the flight looks at.
#pragma once

namespace corvane::app {

/// From now on SIGINT and SIGTERM are remembered; a second one ends the process at once.
void watchStopSignals();
bool isStopSignalled();

} // namespace corvane::app
