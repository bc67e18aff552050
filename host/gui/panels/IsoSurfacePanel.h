// The settings of isosurfaces.
#pragma once

#include "host/gui/panels/PlotListPanel.h"

namespace corvane::gui {

class IsoSurfacePanel : public PlotListPanel {
    Q_OBJECT

public:
    explicit IsoSurfacePanel(const Commands& commands);

protected:
    int count() const override;
    QString titleOf(int number) const override;
    void refreshForm() override;

private:
    void moveToMiddle();

    ValueSlider* m_value;
};

} // namespace corvane::gui
