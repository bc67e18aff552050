// The View menu: fitting, views along the axes, perspective.
#pragma once

#include "host/gui/commands/Commands.h"

#include <QList>
#include <QObject>

class QAction;
class QToolBar;

namespace corvane::gui {

class MainWindow;

class ViewActions : public QObject {
    Q_OBJECT

public:
    ViewActions(const Commands& commands, MainWindow& window);

    void addTo(QToolBar& bar) const;
    void refresh();

private:
    void addAxis(const QString& text, const char* axis, const QString& key);
    void lookFromTheCorner();
    void setPerspective(bool perspective);

    Commands m_commands;
    MainWindow& m_window;
    QAction* m_fit;
    QAction* m_corner = nullptr;
    QList<QAction*> m_axes;
    QAction* m_perspective = nullptr;
};

} // namespace corvane::gui
