#include "host/gui/panels/AnnotationPanel.h"

namespace corvane::gui {

AnnotationPanel::AnnotationPanel(const Commands& commands) : StylePanel(commands) {
    addText(tr("Title"), "Annotations/Title");
    addFlag(tr("Solution time"), "Annotations/ShowTime");
    addFlag(tr("Box around the data"), "Annotations/ShowOutline");
    addFlag(tr("Orientation axis"), "ThreeDAxis/FrameAxis/Show");
    addColor(tr("Background"), "Annotations/Background");
}

} // namespace corvane::gui
