// The dock with the settings of all plots, in collapsible sections.
#pragma once

#include "host/gui/commands/Commands.h"

#include <QDockWidget>
#include <vector>

class QVBoxLayout;

namespace corvane::gui {

class StylePanel;

class PlotSidebar : public QDockWidget {
    Q_OBJECT

public:
    explicit PlotSidebar(const Commands& commands);

    /// Shows the values of the active frame. Performs no commands.
    void refresh();

private:
    void addSection(const QString& title, const char* key, StylePanel* panel, bool isOpen);

    Commands m_commands;
    QWidget* m_content;
    QVBoxLayout* m_column;
    std::vector<StylePanel*> m_panels;
};

} // namespace corvane::gui
