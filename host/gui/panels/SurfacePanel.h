// The settings of the surfaces of blocks.
#pragma once

#include "host/gui/panels/PlotListPanel.h"

namespace corvane::gui {

class SurfacePanel : public PlotListPanel {
    Q_OBJECT

public:
    explicit SurfacePanel(const Commands& commands);

protected:
    int count() const override;
    QString titleOf(int number) const override;
};

} // namespace corvane::gui
