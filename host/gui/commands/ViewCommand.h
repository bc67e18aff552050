// Views as commands of the macro language.
#pragma once

#include "host/gui/commands/Commands.h"

namespace corvane::host {
class Session;
class Frame;
struct View3D;
} // namespace corvane::host

namespace corvane::gui {

/// The active frame when it shows data in space; else null.
const host::Frame* spatialFrameWithData(const host::Session& session);

/// Sets the view as a whole.
void setView(const Commands& commands, const host::View3D& view);

} // namespace corvane::gui
