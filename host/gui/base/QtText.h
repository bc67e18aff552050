// Between the core's texts, which are UTF-8, and Qt's.
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
