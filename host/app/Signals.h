// The signals of the process: Ctrl-C and the end signal of a batch system are a wish that the work
// looks at, and failed writes end nothing.
#pragma once

namespace corvane::app {

/// From now on a pipe that nobody reads and a limit on the size of files are errors of the write,
/// which is told and cleaned up after, instead of the end of the process.
void surviveFailedWrites();

/// From now on SIGINT, SIGTERM and, unless it is ignored as by nohup, SIGHUP are remembered. The
/// second one, of whatever kind, ends the process at once.
void watchStopSignals();
bool isStopSignalled();
/// For an event loop: can be read from once such a signal has come. -1 when there is none to be
/// had. To be called once, before watchStopSignals; the descriptor lives as long as the process.
int stopSignalDescriptor();

} // namespace corvane::app
