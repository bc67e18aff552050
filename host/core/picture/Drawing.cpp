// Decides when the page is drawn.
#include "host/core/picture/Drawing.h"

#include "host/core/addons/Locks.h"
#include "host/core/page/Page.h"
#include "host/core/ports/Ports.h"

namespace corvane::host {

Drawing::Drawing(const Page& page, const Locks& locks, Renderer& renderer, Screen* screen,
                 IdleTimer* idleTimer)
    : m_page(page),
      m_locks(locks),
      m_renderer(renderer),
      m_screen(screen),
      m_idleTimer(idleTimer) {}

void Drawing::suspend() {
    ++m_suspensions;
}

bool Drawing::resume() {
    if (m_suspensions == 0) {
        return false;
    }
    restoreSuspensions(m_suspensions - 1);
    return true;
}

void Drawing::restoreSuspensions(int count) {
    m_suspensions = count;
    schedule();
}

void Drawing::mark() {
    if (!m_marked) {
        m_marked = true;
        schedule();
    }
}

void Drawing::schedule() {
    if (m_marked && m_suspensions == 0 && m_idleTimer != nullptr) {
        m_idleTimer->requestIdle();
    }
}

bool Drawing::redraw(bool allFrames) {
    if (m_suspensions > 0) {
        mark();
        return false;
    }
    draw(allFrames);
    return true;
}

void Drawing::drawIfDue() {
    if (m_marked && m_suspensions == 0 && m_locks.depth() == 0 && m_screen != nullptr) {
        draw(true);
    }
}

Picture Drawing::picture(const PictureRequest& request) {
    Picture result = m_renderer.draw(m_page, request);
    ++m_renders;
    return result;
}

void Drawing::draw(bool allFrames) {
    // First, so that a picture that fails is not tried again and again.
    m_marked = false;
    if (m_screen != nullptr) {
        m_screen->present(m_page, allFrames);
        ++m_renders;
    }
}

} // namespace corvane::host
