// The Frame menu: arranging several frames on the page.
#pragma once

#include "host/gui/commands/Commands.h"

#include <QObject>

#include <vector>

class QAction;

namespace corvane::gui {

class MainWindow;

class FrameActions : public QObject {
    Q_OBJECT

public:
    FrameActions(const Commands& commands, MainWindow& window);

    void refresh();

private:
    enum class Side { Right, Bottom };

    /// Halves the active frame, and creates a new one in the other half.
    void split(Side side);

    Commands m_commands;
    std::vector<QAction*> m_needAFrame;
    std::vector<QAction*> m_needTwo;
};

} // namespace corvane::gui
