#include "host/gui/desktop/WindowController.h"

#include "host/core/Host.h"
#include "host/gui/base/QtText.h"
#include "host/gui/desktop/IdleDriver.h"
#include "host/gui/panels/PlotSidebar.h"
#include "host/gui/status/ProgressStrip.h"
#include "host/gui/time/TimeBar.h"
#include "host/gui/view/DrawingArea.h"
#include "host/gui/window/MainWindow.h"

#include <QApplication>
#include <QFileInfo>
#include <QSettings>
#include <QToolBar>

namespace corvane::gui {

namespace {

/// An animation changes the state with every picture; updating a few times a second is enough.
constexpr int refreshWhileBusyMs = 200;

PlotSidebar* addSidebar(const Commands& commands, MainWindow& window) {
    auto* const sidebar = new PlotSidebar(commands);
    window.addDockWidget(Qt::LeftDockWidgetArea, sidebar);
    return sidebar;
}

} // namespace

WindowController::WindowController(host::Host& host, MainWindow& window, IdleDriver& idle)
    : m_commands(host),
      m_window(window),
      m_idle(idle),
      m_workArea(m_commands, window.drawingArea()),
      m_sidebar(addSidebar(m_commands, window)),
      m_time(m_commands),
      m_files(m_commands, window),
      m_view(m_commands, window),
      m_windowActions(m_commands, window, *m_sidebar),
      m_plot(m_commands, window),
      m_frames(m_commands, window),
      m_timeActions(m_time, window),
      m_macros(m_commands, window),
      m_help(m_commands, window),
      m_mouse(m_commands, window.drawingArea()),
      m_timeBar(new TimeBar(m_time)),
      m_watcher(host.session(), [this](StateChange_e /*change*/) {
          if (!m_refresh.isActive()) {
              m_refresh.start(0);
          }
      }) {
    window.addBottomBar(*m_timeBar);
    addToolBar();
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &WindowController::refresh);
    connect(&m_macros, &MacroActions::recordingChanged, this, &WindowController::refreshStatus);
    connect(&idle, &IdleDriver::idle, this, &WindowController::onIdle);
    connect(&window.drawingArea(), &DrawingArea::resized, this, [this] {
        m_workArea.fit();
        m_idle.requestIdle();
    });
    window.drawingArea().setHint(tr("No data"),
                                 tr("Open data with Ctrl+O, or drop files into this window."));
    window.installEventFilter(this);
    restoreWindow();
    refresh();
}

WindowController::~WindowController() {
    // Fields commit what was typed when they lose the focus, which needs the commands.
    delete m_sidebar;
    delete m_timeBar;
}

bool WindowController::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::Close) {
        return false;
    }
    if (!mayClose()) {
        event->ignore();
        return true;
    }
    saveWindow();
    QApplication::quit();
    return false;
}

void WindowController::addToolBar() {
    QToolBar* const bar = m_window.addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setIconSize({20, 20});
    bar->addAction(&m_windowActions.sidebarAction());
    bar->addSeparator();
    bar->addAction(&m_files.openAction());
    bar->addAction(&m_files.exportAction());
    bar->addSeparator();
    m_view.addTo(*bar);
}

void WindowController::restoreWindow() {
    const QSettings settings;
    m_window.restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray());
    m_window.restoreState(settings.value(QStringLiteral("window/state")).toByteArray());
}

void WindowController::saveWindow() const {
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), m_window.saveGeometry());
    settings.setValue(QStringLiteral("window/state"), m_window.saveState());
}

void WindowController::onIdle() {
    m_workArea.fit();
    m_commands.host().macros().uncommanded().catchUp();
    showExportFailure();
    closeIfWanted();
}

void WindowController::closeAtRest() {
    m_mustClose = true;
    m_idle.requestIdle();
}

void WindowController::closeIfWanted() {
    if (m_mustClose && !m_commands.isBusy()) {
        m_mustClose = false;
        m_window.close();
    }
}

void WindowController::refresh() {
    if (m_commands.isBusy()) {
        m_refresh.start(refreshWhileBusyMs);
        return;
    }
    m_workArea.fit();
    m_sidebar->refresh();
    m_time.refresh();
    m_files.refresh();
    m_view.refresh();
    m_windowActions.refresh();
    m_plot.refresh();
    m_frames.refresh();
    m_macros.refresh();
    refreshTitle();
    refreshStatus();
}

void WindowController::refreshTitle() {
    const host::Frame* const frame = m_commands.session().page().active();
    const bool hasFiles = frame != nullptr && frame->data() && !frame->data()->files.empty();
    const QString file =
        hasFiles ? QFileInfo(toQt(frame->data()->files.front())).fileName() : QString();
    m_window.setWindowTitle(file.isEmpty() ? tr("Corvane") : tr("%1 — Corvane").arg(file));
}

void WindowController::refreshStatus() {
    QString text = tr("Ready");
    const host::Frame* const frame = m_commands.session().page().active();
    if (frame != nullptr && frame->data()) {
        const std::size_t blocks = frame->data()->blocks.size();
        const std::size_t variables = frame->data()->variables.size();
        text = tr("Blocks: %1    Variables: %2").arg(blocks).arg(variables);
    }
    if (m_commands.host().recorder().isRecording()) {
        text = tr("Recording a macro");
    }
    m_window.progressStrip().setIdleText(text);
}

void WindowController::showExportFailure() {
    // The add-on only knows that it was stopped; the user learns the cause once it has cleaned up.
    host::Exporter& exporter = m_commands.session().exporter();
    if (exporter.hasFailed() && !m_commands.isBusy()) {
        const std::string cause = exporter.failure();
        exporter.forgetFailure();
        m_commands.session().prompts().showError(cause);
    }
}

bool WindowController::mayClose() {
    return !m_commands.isBusy() && m_macros.mayQuit();
}

} // namespace corvane::gui
