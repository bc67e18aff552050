// The settings of the light.
#pragma once

#include "host/gui/panels/StylePanel.h"

namespace corvane::gui {

class LightPanel : public StylePanel {
    Q_OBJECT

public:
    explicit LightPanel(const Commands& commands);
};

} // namespace corvane::gui
