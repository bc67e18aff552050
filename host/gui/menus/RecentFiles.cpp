#include "host/gui/menus/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace corvane::gui {

namespace {

QString settingsKey() {
    return QStringLiteral("recentFiles");
}

QString labelOf(const QStringList& files) {
    const QFileInfo first(files.first());
    QString label = first.fileName() + QStringLiteral("  —  ") + first.absolutePath();
    if (files.size() > 1) {
        label = QMenu::tr("%1 and %n more", nullptr, static_cast<int>(files.size() - 1))
                    .arg(first.fileName());
    }
    return label.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

RecentFiles::RecentFiles(QWidget* parent) : QMenu(tr("&Recent Files"), parent) {
    rebuild();
}

void RecentFiles::add(const QStringList& files) {
    QList<QStringList> entries = load();
    entries.removeAll(files);
    entries.prepend(files);
    while (entries.size() > most) {
        entries.removeLast();
    }
    save(entries);
}

void RecentFiles::remove(const QStringList& files) {
    QList<QStringList> entries = load();
    entries.removeAll(files);
    save(entries);
}

QList<QStringList> RecentFiles::load() {
    QList<QStringList> entries;
    const QVariantList stored = QSettings().value(settingsKey()).toList();
    for (const QVariant& entry : stored) {
        const QStringList files = entry.toStringList();
        if (!files.isEmpty()) {
            entries.append(files);
        }
    }
    return entries;
}

void RecentFiles::save(const QList<QStringList>& entries) {
    QVariantList stored;
    for (const QStringList& files : entries) {
        stored.append(QVariant(files));
    }
    QSettings().setValue(settingsKey(), stored);
    rebuild();
}

void RecentFiles::rebuild() {
    clear();
    const QList<QStringList> entries = load();
    setEnabled(!entries.isEmpty());
    for (const QStringList& files : entries) {
        connect(addAction(labelOf(files)), &QAction::triggered, this,
                [this, files] { Q_EMIT chosen(files); });
    }
    if (!entries.isEmpty()) {
        addSeparator();
        connect(addAction(tr("&Clear This List")), &QAction::triggered, this, [this] { save({}); });
    }
}

} // namespace corvane::gui
