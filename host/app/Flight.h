// The main job: a key frame file becomes a movie, by the add-on's own macro commands.
#pragma once

#include "host/app/Options.h"

namespace corvane::host {
class Host;
}

namespace corvane::app {

/// Opens options.keyFrames and writes options.output. Throws MacroError or HostError.
void fly(host::Host& host, const Options& options);

} // namespace corvane::app
