// The Plot menu: toggles for styles that are switched often.
#pragma once

#include "host/gui/panels/StyleEditor.h"

#include <QObject>

class QAction;

namespace corvane::gui {

class MainWindow;

class PlotActions : public QObject {
    Q_OBJECT

public:
    PlotActions(const Commands& commands, MainWindow& window);

    void refresh();

private:
    void add(const QString& text, const std::string& path);

    Commands m_commands;
    MainWindow& m_window;
    StyleEditor m_editor;
    std::vector<std::pair<QAction*, std::string>> m_toggles;
};

} // namespace corvane::gui
