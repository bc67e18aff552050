#include "host/gui/commands/ViewCommand.h"

#include "host/core/Host.h"
#include "host/core/commands/SceneMacro.h"

namespace corvane::gui {

const host::Frame* spatialFrameWithData(const host::Session& session) {
    const host::Frame* const frame = session.page().active();
    return frame != nullptr && frame->data() && frame->isSpatial() ? frame : nullptr;
}

void setView(const Commands& commands, const host::View3D& view) {
    commands.perform("VIEW", host::viewWords(view));
}

} // namespace corvane::gui
