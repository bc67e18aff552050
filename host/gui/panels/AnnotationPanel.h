// The settings of title, axis, background and other annotations.
#pragma once

#include "host/gui/panels/StylePanel.h"

namespace corvane::gui {

class AnnotationPanel : public StylePanel {
    Q_OBJECT

public:
    explicit AnnotationPanel(const Commands& commands);
};

} // namespace corvane::gui
