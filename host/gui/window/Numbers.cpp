// Numbers as people and macros read them.
#include "host/gui/window/Numbers.h"

#include <array>
#include <charconv>

namespace corvane::gui {

std::string exactText(double value) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end};
}

QString shortText(double value) {
    return QString::number(value, 'g', 6);
}

} // namespace corvane::gui
