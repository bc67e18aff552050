#include "host/gui/menus/PlotActions.h"

#include "host/gui/commands/MenuActions.h"
#include "host/gui/commands/ViewCommand.h"
#include "host/gui/window/MainWindow.h"

namespace corvane::gui {

PlotActions::PlotActions(const Commands& commands, MainWindow& window)
    : m_commands(commands), m_window(window), m_editor(commands) {
    add(tr("&Legend"), "Contour/ShowLegend");
    add(tr("Orientation &Axis"), "ThreeDAxis/FrameAxis/Show");
    add(tr("&Box Around the Data"), "Annotations/ShowOutline");
    add(tr("Solution &Time"), "Annotations/ShowTime");
    window.menu(QStringLiteral("Plot")).addSeparator();
    add(tr("&Streamtraces"), "Streamtraces/Show");
    add(tr("Streamtrace &Markers"), "StreamAttributes/StreamTiming/ShowMarkers");
    add(tr("Streamtrace &Dashes"), "StreamAttributes/StreamTiming/ShowDashes");
}

void PlotActions::add(const QString& text, const std::string& path) {
    QAction* const action =
        addAction(m_window.menu(QStringLiteral("Plot")), text, [this, path](bool isOn) {
            m_editor.set(path, isOn ? "true" : "false");
            refresh();
        });
    action->setCheckable(true);
    m_toggles.emplace_back(action, path);
}

void PlotActions::refresh() {
    const bool hasData = spatialFrameWithData(m_commands.session()) != nullptr;
    for (const auto& [action, path] : m_toggles) {
        action->setEnabled(hasData);
        action->setChecked(m_editor.isOn(path));
    }
}

} // namespace corvane::gui
