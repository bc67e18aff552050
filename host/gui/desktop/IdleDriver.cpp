// Gives the host its idle time.
#include "host/gui/desktop/IdleDriver.h"

#include "host/core/Host.h"
#include "host/core/base/HostError.h"
#include "host/gui/view/PictureScreen.h"

#include <QThread>

namespace corvane::gui {

namespace {

/// How long to wait before looking again whether an inner loop has ended.
constexpr int retryMs = 30;

bool isInnerLoop() {
    return QThread::currentThread()->loopLevel() > 1;
}

} // namespace

IdleDriver::IdleDriver(const PictureScreen& screen) : m_screen(screen) {
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &IdleDriver::run);
}

void IdleDriver::setHost(host::Host* host) {
    m_host = host;
    m_timer.stop();
}

void IdleDriver::requestIdle() {
    m_timer.start(0);
}

bool IdleDriver::isInterrupting() const {
    return m_screen.isDrawing() || m_host->session().isAnimating() || m_host->macros().isPlaying();
}

void IdleDriver::run() {
    if (m_host == nullptr) {
        return;
    }
    if (isInterrupting()) {
        m_timer.start(retryMs);
        return;
    }
    if (isInnerLoop()) {
        m_timer.start(retryMs);
        try {
            m_host->session().drawing().drawIfDue();
        } catch (const host::HostError&) {
            // A message box over a message box helps nobody; the next picture will fail again.
        }
        return;
    }
    m_host->session().onIdle();
    if (onIdle) {
        onIdle();
    }
}

} // namespace corvane::gui
