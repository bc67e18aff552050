// How the scene is lit.
#pragma once

#include "host/gui/window/StylePanel.h"

namespace corvane::gui {

class LightPanel : public StylePanel {
    Q_OBJECT

public:
    explicit LightPanel(const Commands& commands);
};

} // namespace corvane::gui
