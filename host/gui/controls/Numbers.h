// Numbers as text for the user.
#pragma once

#include <QString>

namespace corvane::gui {

/// Six digits at most.
QString shortText(double value);

} // namespace corvane::gui
