// The view of the active frame, and the command that sets it.
#pragma once

#include "host/gui/commands/Commands.h"

namespace corvane::host {
class Session;
class Frame;
struct View3D;
} // namespace corvane::host

namespace corvane::gui {

/// The active frame if it has data and shows them in 3D, else null.
const host::Frame* spatialFrameWithData(const host::Session& session);

/// One VIEW command with all values of the view.
void setView(const Commands& commands, const host::View3D& view);

} // namespace corvane::gui
