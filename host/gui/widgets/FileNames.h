// File names as the file dialog handles them.
#pragma once

#include <QString>
#include <QStringList>

namespace corvane::gui {

/// Patterns for a file dialog: those of the filter, such as "*.mp4", and all files.
QStringList namePatterns(const QString& fileType, const QString& filter);
/// With the ending of the filter, when the last part of the path has no dot.
QString withEnding(const QString& path, const QString& filter);

} // namespace corvane::gui
