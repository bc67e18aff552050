// Turns, pans and zooms the view with the mouse.
#pragma once

#include "host/gui/commands/Commands.h"
#include "host/gui/view/ViewMotion.h"

#include <QObject>
#include <QPointF>

class QMouseEvent;
class QWheelEvent;

namespace corvane::host {
class Frame;
}

namespace corvane::gui {

class DrawingArea;

/// Left: turn. Middle or Shift + left: pan. Right and wheel: zoom toward the pointer. Ctrl + left:
/// twist. An event changes the view; the picture is drawn when the event loop is idle.
class ViewMouse : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the mouse.
    ViewMouse(const Commands& commands, DrawingArea& area);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Drag { None, Turn, Pan, Zoom, Twist };

    static Drag dragFor(const QMouseEvent& event);
    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release();
    void wheel(const QWheelEvent& event);

    void activateFrameAt(QPointF point) const;
    const host::Frame* spatialFrame() const;
    QRectF rectOf(const host::Frame& frame) const;
    PictureOffset fromCenter(const host::Frame& frame, QPointF point) const;
    PictureSize sizeOf(const host::Frame& frame) const;
    template <typename Change>
    void changeView(Change change);

    Commands m_commands;
    DrawingArea& m_area;
    Drag m_drag = Drag::None;
    QPointF m_start;
    QPointF m_last;
};

} // namespace corvane::gui
