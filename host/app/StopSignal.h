// Ctrl-C and the end signal of a batch system, as a wish that the program looks at.
#pragma once

namespace corvane::app {

/// From now on SIGINT, SIGTERM and, unless it is ignored as by nohup, SIGHUP are remembered; a
/// second one ends the process at once.
void watchStopSignals();
bool isStopSignalled();
/// For an event loop: can be read from once such a signal has come. -1 when there is none to be
/// had. To be called once; the descriptor lives as long as the process.
int stopSignalDescriptor();

} // namespace corvane::app
