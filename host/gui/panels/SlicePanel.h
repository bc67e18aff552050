// The settings of slices.
#pragma once

#include "host/gui/panels/PlotListPanel.h"

namespace corvane::gui {

class SlicePanel : public PlotListPanel {
    Q_OBJECT

public:
    explicit SlicePanel(const Commands& commands);

protected:
    int count() const override;
    QString titleOf(int number) const override;
    void refreshForm() override;

private:
    void moveToMiddle();

    ValueSlider* m_position;
};

} // namespace corvane::gui
