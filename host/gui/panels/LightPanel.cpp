#include "host/gui/panels/LightPanel.h"

namespace corvane::gui {

LightPanel::LightPanel(const Commands& commands) : StylePanel(commands) {
    addSlider(tr("Intensity"), "GlobalThreeD/LightSource/Intensity", 0.0, 100.0);
    addSlider(tr("Background"), "GlobalThreeD/LightSource/BackgroundLight", 0.0, 100.0);
}

} // namespace corvane::gui
