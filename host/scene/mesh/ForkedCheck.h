// Work that may bring the process down, tried in a copy of the process.
#pragma once

#include <functional>

namespace corvane::scene {

/// Whether the work comes to its end, be it by an exception. False when it crashes or takes longer
/// than the seconds. It is done in a copy of this process and changes nothing here; of the threads,
/// only the calling one is copied, so the work must need no lock that another one may hold. True,
/// untried, when there can be no copy.
bool survives(const std::function<void()>& work, unsigned seconds);

} // namespace corvane::scene
