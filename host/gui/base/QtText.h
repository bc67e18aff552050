// Converts between the core's UTF-8 strings and QString.
#pragma once

#include <QString>
#include <string>

namespace corvane::gui {

inline QString toQt(const std::string& text) {
    return QString::fromStdString(text);
}

inline std::string fromQt(const QString& text) {
    return text.toStdString();
}

} // namespace corvane::gui
