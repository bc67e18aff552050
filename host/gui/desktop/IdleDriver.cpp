#include "host/gui/desktop/IdleDriver.h"

#include "host/core/Host.h"
#include "host/gui/desktop/IdleRequests.h"
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

IdleDriver::IdleDriver(host::Host& host, const PictureScreen& screen, IdleRequests& requests)
    : m_host(host), m_screen(screen), m_requests(requests) {
    connect(&m_requests, &QTimer::timeout, this, &IdleDriver::run);
}

void IdleDriver::requestIdle() {
    m_requests.requestIdle();
}

bool IdleDriver::isInterrupting() const {
    return m_screen.isDrawing() || m_host.session().isAnimating() || m_host.macros().isPlaying();
}

void IdleDriver::run() {
    if (isInterrupting()) {
        m_requests.start(retryMs);
        return;
    }
    if (isInnerLoop()) {
        m_requests.start(retryMs);
        try {
            m_host.session().drawing().drawIfDue();
        } catch (const std::exception&) {
            // One message box on top of another helps no user, and the next picture fails again.
        }
        return;
    }
    m_host.session().onIdle();
    Q_EMIT idle();
}

} // namespace corvane::gui
