// Views as commands of the macro language.
#include "host/gui/window/ViewCommand.h"

#include "host/core/Application.h"
#include "host/gui/window/Numbers.h"

#include <initializer_list>
#include <utility>

namespace corvane::gui {

namespace {

std::vector<std::string> wordsFor(const host::View3D& view) {
    std::vector<std::string> words{"SET", "Perspective", "=", view.perspective ? "true" : "false"};
    const std::initializer_list<std::pair<const char*, double>> numbers{
        {"Psi", view.psi},
        {"Theta", view.theta},
        {"Alpha", view.alpha},
        {"X", view.position.x},
        {"Y", view.position.y},
        {"Z", view.position.z},
        {"FieldOfView", view.fieldOfView}};
    for (const auto& [name, value] : numbers) {
        words.insert(words.end(), {name, "=", exactText(value)});
    }
    if (!view.perspective) {
        words.insert(words.end(), {"Width", "=", exactText(view.width)});
    }
    return words;
}

} // namespace

host::Frame* spatialFrameWithData(host::Application& application) {
    host::Frame* const frame = application.page().active();
    const bool isSpatial =
        frame != nullptr && frame->data() && frame->plotType == PlotType_Cartesian3D;
    return isSpatial ? frame : nullptr;
}

void setView(const Commands& commands, const host::View3D& view) {
    commands.perform("VIEW", wordsFor(view));
}

void recordView(const Commands& commands) {
    const host::Frame* const frame = spatialFrameWithData(commands.application());
    if (frame != nullptr && commands.application().recorder().isRecording()) {
        setView(commands, frame->view);
    }
}

} // namespace corvane::gui
