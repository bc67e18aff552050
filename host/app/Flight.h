// The main job: a key frame file becomes a movie, by the add-on's own macro commands.
#pragma once

#include "host/app/Options.h"

namespace corvane::host {
class Application;
}

namespace corvane::app {

/// Opens options.keyFrames and writes options.output. Throws MacroError or HostError.
void fly(host::Application& application, const Options& options);

} // namespace corvane::app
