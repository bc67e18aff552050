// Whether a library can be loaded, tried where it can do no harm.
#pragma once

#include <string>

namespace corvane::host {

/// Loads it in a helper process: what a library does when it is loaded, and how the loader fares
/// with one that is cut off, may end the process. Answers what happened then, as the end of a
/// sentence; empty when it was loaded or the loader refused it with a text of its own, and where no
/// process server runs. The path is the loader's: without a slash it searches for it.
std::string harmOfLoading(const std::string& path);

} // namespace corvane::host
