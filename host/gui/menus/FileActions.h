// The File menu: opening data and exporting pictures; and copying pictures.
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

    /// Opens the files as one data set. False after a failure, which has been reported; the data
    /// loaded before stay then.
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
