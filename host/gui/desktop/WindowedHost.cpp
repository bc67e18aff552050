// A host with windows: the ports that are windows, the host itself, and its main window.
#include "host/gui/desktop/WindowedHost.h"

#include "host/gui/base/QtText.h"
#include "host/gui/status/ProgressStrip.h"
#include "host/gui/view/DrawingArea.h"

#include <QMenuBar>

namespace corvane::gui {

WindowedHost::WindowedHost(const WindowedHostParts& parts)
    : m_pacer(m_window.drawingArea()),
      m_screen(parts.renderer, m_window.drawingArea(), m_pacer),
      m_status(m_window.progressStrip(), m_pacer),
      m_idle(m_screen),
      m_prompts(m_window, parts.helpFolder, [this](const std::string& text) { tell(text); }),
      m_widgets(m_window),
      m_mainMenu(*m_window.menuBar()),
      m_host({.renderer = parts.renderer,
              .reader = parts.reader,
              .movies = parts.movies,
              .status = m_status,
              .prompts = parts.prompts != nullptr ? *parts.prompts : m_prompts,
              .pictures = parts.pictures,
              .screen = &m_screen,
              .idleTimer = &m_idle,
              .widgets = &m_widgets,
              .mainMenu = &m_mainMenu}),
      m_controller(m_host, m_window, m_idle) {
    m_status.onFinished = [this] { m_idle.requestIdle(); };
}

void WindowedHost::tell(const std::string& notice) {
    m_window.progressStrip().tell(toQt(notice));
}

WindowedHost::~WindowedHost() {
    m_host.session().quit();
}

} // namespace corvane::gui
