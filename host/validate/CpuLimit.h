// Ends work that does not end.
#pragma once

namespace corvane::validate {

/// The process may compute so many seconds from now on, waiting not counted; then SIGXCPU ends it.
void allowComputing(unsigned seconds);

} // namespace corvane::validate
