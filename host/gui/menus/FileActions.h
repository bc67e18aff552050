// Opening data and exporting pictures: the File menu.
#pragma once

#include "host/gui/commands/Commands.h"

#include <QObject>
#include <QStringList>

class QAction;

namespace corvane::gui {

class MainWindow;
class RecentFiles;

class FileActions : public QObject {
    Q_OBJECT

public:
    FileActions(const Commands& commands, MainWindow& window);

    /// As one data set. False: the user was told why not, and the data from before are still there.
    bool openData(const QStringList& files);

    QAction& openAction() const { return *m_open; }
    QAction& exportAction() const { return *m_export; }

    void refresh();

private:
    void askAndOpen();
    void exportPicture();
    void copyPicture();

    Commands m_commands;
    MainWindow& m_window;
    RecentFiles* m_recent;
    QAction* m_open;
    QAction* m_export;
    QAction* m_copy;
};

} // namespace corvane::gui
