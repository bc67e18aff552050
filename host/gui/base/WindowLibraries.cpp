#include "host/gui/base/WindowLibraries.h"

#include "host/gui/base/QtText.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <array>

namespace corvane::gui {

namespace {

QString platforms() {
    // Which folder that is, a program's qt.conf may tell, and is read once there is an application.
    int count = 1;
    std::array<char*, 2> name{const_cast<char*>("corvane"), nullptr};
    const QCoreApplication application(count, name.data());
    const QDir folder(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    QStringList names;
    for (const QString& file : folder.entryList({QStringLiteral("libq*.so")}, QDir::Files)) {
        names << file.mid(4).chopped(3);
    }
    return names.isEmpty() ? QStringLiteral("no display: there are no plug-ins in ") + folder.path()
                           : names.join(QStringLiteral(", "));
}

} // namespace

std::string windowLibraries() {
    return std::string("Qt ") + qVersion() + " for " + fromQt(platforms());
}

} // namespace corvane::gui
