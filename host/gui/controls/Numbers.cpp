#include "host/gui/controls/Numbers.h"

namespace corvane::gui {

QString shortText(double value) {
    return QString::number(value, 'g', 6);
}

} // namespace corvane::gui
