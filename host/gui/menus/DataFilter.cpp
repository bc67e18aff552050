#include "host/gui/menus/DataFilter.h"

#include "host/gui/base/QtText.h"

#include <QObject>
#include <QStringList>

namespace corvane::gui {

namespace {

QStringList patternsOf(const host::DataFormat& format) {
    QStringList patterns;
    for (const std::string& extension : format.extensions) {
        patterns.append(QStringLiteral("*") + toQt(extension));
    }
    return patterns;
}

QString entry(const QString& description, const QStringList& patterns) {
    return description + QStringLiteral(" (") + patterns.join(QStringLiteral(" ")) +
           QStringLiteral(")");
}

} // namespace

QString dataFilter(const std::vector<host::DataFormat>& formats) {
    QStringList allPatterns;
    QStringList entries;
    for (const host::DataFormat& format : formats) {
        const QStringList patterns = patternsOf(format);
        allPatterns += patterns;
        entries.append(entry(toQt(format.description), patterns));
    }
    entries.prepend(entry(QObject::tr("Simulation results"), allPatterns));
    entries.append(entry(QObject::tr("All files"), {QStringLiteral("*")}));
    return entries.join(QStringLiteral(";;"));
}

} // namespace corvane::gui
