// The log messages of libav.
#pragma once

#include <string>

namespace corvane::movie {

/// Redirects libav's log from the terminal for the rest of the process; the last error message of
/// each thread is kept.
void captureLibavLog();

/// The last error message that libav logged on this thread since the previous call, or empty.
std::string takeLibavMessage();

} // namespace corvane::movie
