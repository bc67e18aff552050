// What libav* says beside its return codes.
#pragma once

#include <string>

namespace corvane::movie {

/// Keeps libav's messages off the terminal, for the whole process and for good; the last error
/// message of each thread is kept.
void captureLibavLog();

/// The last error message that libav gave on this thread since the last call; empty without one.
std::string takeLibavMessage();

} // namespace corvane::movie
