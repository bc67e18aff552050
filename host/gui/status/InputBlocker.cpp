// Keeps the user away from everything but Stop and Esc while an animation plays.
#include "host/gui/status/InputBlocker.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

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
    lower();
}

void InputBlocker::raise() {
    if (!m_isUp) {
        m_isUp = true;
        qApp->installEventFilter(this);
    }
}

void InputBlocker::lower() {
    if (m_isUp) {
        m_isUp = false;
        qApp->removeEventFilter(this);
    }
}

bool InputBlocker::eventFilter(QObject* receiver, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::Close) {
        event->ignore(); // an accepted event would close the window although nobody saw it
        return true;
    }
    if (isKeyInput(type)) {
        handleKey(event);
        return true;
    }
    // Windows pass their events on to widgets, where they come by again.
    return isPointerInput(type) && receiver->isWidgetType() && !isForStopButton(receiver);
}

bool InputBlocker::isForStopButton(QObject* receiver) const {
    return receiver == &m_stopButton;
}

void InputBlocker::handleKey(QEvent* event) {
    event->accept(); // an override that is accepted keeps shortcuts away
    if (event->type() == QEvent::KeyPress && onEscape &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        onEscape();
    }
}

} // namespace corvane::gui
