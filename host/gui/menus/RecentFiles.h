// The data that were opened last, as a menu.
#pragma once

#include <QMenu>
#include <QStringList>
#include <functional>

namespace corvane::gui {

/// One entry is what was opened at once: one or several files.
class RecentFiles : public QMenu {
    Q_OBJECT

public:
    static constexpr int most = 10;

    explicit RecentFiles(QWidget* parent = nullptr);

    void add(const QStringList& files);
    void remove(const QStringList& files);

    std::function<void(const QStringList&)> onChosen;

private:
    static QList<QStringList> load();
    void save(const QList<QStringList>& entries);
    void rebuild();
};

} // namespace corvane::gui
