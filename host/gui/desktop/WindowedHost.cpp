#include "host/gui/desktop/WindowedHost.h"

#include "host/gui/base/QtText.h"
#include "host/gui/status/ProgressStrip.h"
#include "host/gui/view/DrawingArea.h"

#include <QMenuBar>

namespace corvane::gui {

WindowedHost::WindowedHost(const WindowedHostParts& parts)
    : m_pacer(m_window.drawingArea()),
      m_screen(parts.renderer, m_window.drawingArea(), m_pacer),
      m_status(m_window.progressStrip(), m_pacer, m_idleRequests),
      m_prompts(m_window, parts.helpFolder, [this](const std::string& text) { showNotice(text); }),
      m_widgets(m_window),
      m_mainMenu(*m_window.menuBar()),
      m_host({.renderer = parts.renderer,
              .reader = parts.reader,
              .movies = parts.movies,
              .status = m_status,
              .prompts = parts.prompts != nullptr ? *parts.prompts : m_prompts,
              .pictures = parts.pictures,
              .screen = &m_screen,
              .idleTimer = &m_idleRequests,
              .widgets = &m_widgets,
              .mainMenu = &m_mainMenu,
              .tell = [this](const std::string& note) { showNotice(note); }}),
      m_idle(m_host, m_screen, m_idleRequests),
      m_controller(m_host, m_window, m_idle) {
    QObject::connect(&m_status, &StatusBarDisplay::closeRequested, &m_controller,
                     &WindowController::closeAtRest);
}

void WindowedHost::showNotice(const std::string& notice) {
    m_window.progressStrip().showNotice(toQt(notice));
}

WindowedHost::~WindowedHost() {
    m_host.session().quit();
}

} // namespace corvane::gui
