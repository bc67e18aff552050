// What the command line says that this run reads.
#pragma once

namespace corvane::app {

struct Options;

/// To be called before anything is written: no output goes over these files.
void noteInputs(const Options& options);

} // namespace corvane::app
