// Views as commands of the macro language.
#include "host/gui/window/ViewCommand.h"

#include "host/core/Application.h"
#include "host/core/macro/SceneMacro.h"

namespace corvane::gui {

host::Frame* spatialFrameWithData(host::Application& application) {
    host::Frame* const frame = application.page().active();
    const bool isSpatial =
        frame != nullptr && frame->data() && frame->plotType == PlotType_Cartesian3D;
    return isSpatial ? frame : nullptr;
}

void setView(const Commands& commands, const host::View3D& view) {
    commands.perform("VIEW", host::viewWords(view));
}

} // namespace corvane::gui
