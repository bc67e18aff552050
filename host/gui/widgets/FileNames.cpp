#include "host/gui/widgets/FileNames.h"

#include <QFileInfo>

namespace corvane::gui {

QStringList namePatterns(const QString& fileType, const QString& filter) {
    const QString all = QStringLiteral("All files (*)");
    if (filter.isEmpty()) {
        return {all};
    }
    // Qt takes the last parentheses for the pattern; those of the type would confuse the user.
    QString type = fileType;
    type.remove(QLatin1Char('(')).remove(QLatin1Char(')'));
    return {QStringLiteral("%1 (%2)").arg(type.isEmpty() ? filter : type, filter), all};
}

QString withEnding(const QString& path, const QString& filter) {
    const QString ending = filter.mid(1); // after the asterisk
    const bool isEnding = filter.startsWith(QLatin1String("*.")) && ending.size() > 1 &&
                          !ending.contains(QLatin1Char('/')) && !ending.contains(QLatin1Char('*'));
    return isEnding && !QFileInfo(path).fileName().contains(QLatin1Char('.')) ? path + ending
                                                                              : path;
}

} // namespace corvane::gui
