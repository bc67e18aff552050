// Converts dialog units to pixels, so that layouts follow the font.
#pragma once

#include "host/core/controls/Control.h"

#include <QFont>
#include <QRect>

namespace corvane::gui {

/// 100 units are the width of an average character horizontally, and the height of a line
/// vertically.
class DialogUnits {
public:
    explicit DialogUnits(const QFont& font);

    int across(int units) const;
    int down(int units) const;
    QRect rect(const host::Box& box) const;

private:
    double m_characterWidth;
    double m_lineHeight;
};

} // namespace corvane::gui
