#include "host/gui/view/ViewMouse.h"

#include "host/core/Host.h"
#include "host/gui/commands/ViewCommand.h"
#include "host/gui/view/DrawingArea.h"

#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>

namespace corvane::gui {

namespace {

constexpr double factorPerNotch = 1.15;
constexpr double anglePerNotch = 120.0; // of QWheelEvent
constexpr double factorPerPixel = 1.008;

} // namespace

ViewMouse::ViewMouse(const Commands& commands, DrawingArea& area)
    : m_commands(commands), m_area(area) {
    area.installEventFilter(this);
}

bool ViewMouse::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseMove:
        move(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        release();
        return true;
    case QEvent::Wheel:
        wheel(*static_cast<QWheelEvent*>(event));
        return true;
    default:
        return false;
    }
}

ViewMouse::Drag ViewMouse::dragFor(const QMouseEvent& event) {
    switch (event.button()) {
    case Qt::LeftButton:
        if (event.modifiers().testFlag(Qt::ShiftModifier)) {
            return Drag::Pan;
        }
        return event.modifiers().testFlag(Qt::ControlModifier) ? Drag::Twist : Drag::Turn;
    case Qt::MiddleButton:
        return Drag::Pan;
    case Qt::RightButton:
        return Drag::Zoom;
    default:
        return Drag::None;
    }
}

void ViewMouse::press(const QMouseEvent& event) {
    if (m_drag != Drag::None) {
        return; // a second button does not change the drag
    }
    m_area.setFocus(Qt::MouseFocusReason);
    activateFrameAt(event.position());
    if (spatialFrame() == nullptr) {
        return;
    }
    m_drag = dragFor(event);
    m_start = event.position();
    m_last = m_start;
    m_area.setCursor(m_drag == Drag::Pan ? Qt::ClosedHandCursor : Qt::ArrowCursor);
}

void ViewMouse::move(const QMouseEvent& event) {
    const host::Frame* const frame = spatialFrame();
    if (m_drag == Drag::None || frame == nullptr) {
        return;
    }
    const PictureOffset from = fromCenter(*frame, m_last);
    const PictureOffset to = fromCenter(*frame, event.position());
    const PictureOffset step{to.right - from.right, to.up - from.up};
    const PictureSize size = sizeOf(*frame);
    const PictureOffset start = fromCenter(*frame, m_start);
    m_last = event.position();
    changeView([&](host::View3D& view) {
        switch (m_drag) {
        case Drag::Turn:
            return turn(view, step, size);
        case Drag::Pan:
            return pan(view, step, size);
        case Drag::Zoom:
            return zoom(view, std::pow(factorPerPixel, step.up), start, size);
        case Drag::Twist:
            return twist(view, from, to);
        case Drag::None:
            return;
        }
    });
}

void ViewMouse::release() {
    m_drag = Drag::None;
    m_area.unsetCursor();
}

void ViewMouse::wheel(const QWheelEvent& event) {
    activateFrameAt(event.position());
    const host::Frame* const frame = spatialFrame();
    if (frame == nullptr || m_drag != Drag::None) {
        return;
    }
    const double factor = std::pow(factorPerNotch, event.angleDelta().y() / anglePerNotch);
    changeView([&](host::View3D& view) {
        zoom(view, factor, fromCenter(*frame, event.position()), sizeOf(*frame));
    });
}

void ViewMouse::activateFrameAt(QPointF point) const {
    const host::Page& page = m_commands.session().page();
    for (const auto& frame : page.frames()) {
        if (rectOf(*frame).contains(point)) {
            if (frame != page.active()) {
                m_commands.perform("FRAME", {"ACTIVATE", "=", std::to_string(frame->id())});
            }
            return;
        }
    }
}

const host::Frame* ViewMouse::spatialFrame() const {
    return spatialFrameWithData(m_commands.session());
}

QRectF ViewMouse::rectOf(const host::Frame& frame) const {
    const double scale =
        m_commands.session().page().workArea.pixelsPerInch / m_area.devicePixelRatioF();
    const host::Placement& place = frame.placement;
    return {place.x * scale, place.y * scale, place.width * scale, place.height * scale};
}

PictureOffset ViewMouse::fromCenter(const host::Frame& frame, QPointF point) const {
    const QPointF center = rectOf(frame).center();
    return {point.x() - center.x(), center.y() - point.y()};
}

PictureSize ViewMouse::sizeOf(const host::Frame& frame) const {
    const QRectF rect = rectOf(frame);
    return {rect.width(), rect.height()};
}

template <typename Change>
void ViewMouse::changeView(Change change) {
    if (const host::Frame* const frame = spatialFrame()) {
        host::View3D view = frame->view;
        change(view);
        m_commands.session().setView(view);
    }
}

} // namespace corvane::gui
