// A menu of recently opened data.
#pragma once

#include <QMenu>
#include <QStringList>

namespace corvane::gui {

/// An entry stands for all files of one data set.
class RecentFiles : public QMenu {
    Q_OBJECT

public:
    static constexpr int most = 10;

    explicit RecentFiles(QWidget* parent = nullptr);

    void add(const QStringList& files);
    void remove(const QStringList& files);

Q_SIGNALS:
    void chosen(const QStringList& files);

private:
    static QList<QStringList> load();
    void save(const QList<QStringList>& entries);
    void rebuild();
};

} // namespace corvane::gui
