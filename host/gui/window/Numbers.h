// Numbers as people and macros read them.
#pragma once

#include <QString>
#include <string>

namespace corvane::gui {

/// The shortest text that is read back as the same number.
std::string exactText(double value);
/// Six digits at most.
QString shortText(double value);

} // namespace corvane::gui
