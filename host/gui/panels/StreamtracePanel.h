// The settings of streamtraces and their markers and dashes.
#pragma once

#include "host/gui/panels/StylePanel.h"

namespace corvane::gui {

class StreamtracePanel : public StylePanel {
    Q_OBJECT

public:
    explicit StreamtracePanel(const Commands& commands);

    void refresh() override;

private:
    void showSeedRows();

    ColorButton* m_color;
};

} // namespace corvane::gui
