#include "host/gui/status/InputBlocker.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

namespace corvane::gui {

namespace {

bool isPointerInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool isKeyInput(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::Shortcut ||
           type == QEvent::ShortcutOverride || type == QEvent::InputMethod;
}

} // namespace

InputBlocker::~InputBlocker() {
    unblock();
}

void InputBlocker::block() {
    if (!m_isBlocking) {
        m_isBlocking = true;
        qApp->installEventFilter(this);
    }
}

void InputBlocker::unblock() {
    if (m_isBlocking) {
        m_isBlocking = false;
        qApp->removeEventFilter(this);
    }
}

bool InputBlocker::eventFilter(QObject* receiver, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::Close) {
        event->ignore(); // an accepted event would close the window although it was filtered
        if (isMainWindow(receiver)) {
            Q_EMIT closeRequested();
        }
        return true;
    }
    if (isKeyInput(type)) {
        handleKey(event);
        return true;
    }
    // Native windows pass their events on to widgets, where they are filtered.
    return isPointerInput(type) && receiver->isWidgetType() && !isForStopButton(receiver);
}

bool InputBlocker::isMainWindow(QObject* receiver) const {
    const QWidget* const window = m_stopButton.window();
    return receiver == window || receiver == window->windowHandle(); // which hears of it first
}

bool InputBlocker::isForStopButton(QObject* receiver) const {
    return receiver == &m_stopButton;
}

void InputBlocker::handleKey(QEvent* event) {
    event->accept(); // an accepted override keeps shortcuts from being triggered
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        Q_EMIT escapePressed();
    }
}

} // namespace corvane::gui
