// The three files that every process should have.
#pragma once

namespace corvane::app {

/// Opens those that are closed, so that no movie becomes the file that messages are written to.
/// Using them fails still.
void holdStandardStreams();

} // namespace corvane::app
