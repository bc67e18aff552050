// File name patterns and extensions for file dialogs.
#pragma once

#include <QString>
#include <QStringList>

namespace corvane::gui {

/// The name filters of a file dialog: that of the add-on, such as "*.mp4", and all files.
QStringList namePatterns(const QString& fileType, const QString& filter);
/// The path with the extension of the filter, if the file name has none.
QString withEnding(const QString& path, const QString& filter);

} // namespace corvane::gui
