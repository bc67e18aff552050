// Gives the host its idle time.
#include "host/gui/window/IdleDriver.h"

#include "host/core/Application.h"
#include "host/core/HostError.h"
#include "host/gui/window/PictureScreen.h"

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

void IdleDriver::setApplication(host::Application* application) {
    m_application = application;
    m_timer.stop();
}

void IdleDriver::requestIdle() {
    m_timer.start(0);
}

bool IdleDriver::isInterrupting() const {
    return m_screen.isDrawing() || m_application->isAnimating() ||
           m_application->macros().isPlaying();
}

void IdleDriver::run() {
    if (m_application == nullptr) {
        return;
    }
    if (isInterrupting()) {
        m_timer.start(retryMs);
        return;
    }
    if (isInnerLoop()) {
        m_timer.start(retryMs);
        try {
            m_application->drawing().drawIfDue();
        } catch (const host::HostError&) {
            // A message box over a message box helps nobody; the next picture will fail again.
        }
        return;
    }
    m_application->onIdle();
    if (onIdle) {
        onIdle();
    }
}

} // namespace corvane::gui
