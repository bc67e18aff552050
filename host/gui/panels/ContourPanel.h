// The settings of the variable, range and color map that plots are colored by.
#pragma once

#include "host/gui/panels/StylePanel.h"

namespace corvane::gui {

class ContourPanel : public StylePanel {
    Q_OBJECT

public:
    explicit ContourPanel(const Commands& commands);

    void refresh() override;

private:
    void startWithFullRange();

    NumberEdit* m_minimum;
    NumberEdit* m_maximum;
};

} // namespace corvane::gui
