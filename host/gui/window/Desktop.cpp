// A host with windows: the parts of the outside that are windows, the application, and its window.
#include "host/gui/window/Desktop.h"

#include "host/gui/QtText.h"
#include "host/gui/window/DrawingArea.h"
#include "host/gui/window/ProgressStrip.h"

#include <QMenuBar>

namespace corvane::gui {

Desktop::Desktop(const DesktopParts& parts)
    : m_pacer(m_window.drawingArea()),
      m_screen(parts.renderer, m_window.drawingArea(), m_pacer),
      m_status(m_window.progressStrip(), m_pacer),
      m_idle(m_screen),
      m_dialogs(m_window, parts.helpFolder, [this](const std::string& text) { tell(text); }),
      m_widgets(m_window),
      m_mainMenu(*m_window.menuBar()),
      m_application({.renderer = parts.renderer,
                     .reader = parts.reader,
                     .movies = parts.movies,
                     .status = m_status,
                     .dialogs = parts.dialogs != nullptr ? *parts.dialogs : m_dialogs,
                     .pictures = parts.pictures,
                     .screen = &m_screen,
                     .idleTimer = &m_idle,
                     .widgets = &m_widgets,
                     .mainMenu = &m_mainMenu}),
      m_workbench(m_application, m_window, m_idle) {
    m_status.onFinished = [this] { m_idle.requestIdle(); };
}

void Desktop::tell(const std::string& notice) {
    m_window.progressStrip().tell(toQt(notice));
}

Desktop::~Desktop() {
    m_application.quit();
}

} // namespace corvane::gui
