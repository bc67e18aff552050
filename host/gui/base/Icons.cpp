#include "host/gui/base/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace corvane::gui {

namespace {

/// Icons are drawn on a canvas of 24 by 24 units.
constexpr double canvas = 24.0;

void drawTriangle(QPainter& painter, double tip, double base) {
    QPainterPath path;
    path.moveTo(tip, 12);
    path.lineTo(base, 5);
    path.lineTo(base, 19);
    path.closeSubpath();
    painter.fillPath(path, painter.pen().color());
}

void drawBar(QPainter& painter, double left) {
    painter.fillRect(QRectF(left, 5, 3, 14), painter.pen().color());
}

void drawOpen(QPainter& painter) {
    QPainterPath back;
    back.moveTo(3, 19);
    back.lineTo(3, 5);
    back.lineTo(9, 5);
    back.lineTo(11, 8);
    back.lineTo(18, 8);
    back.lineTo(18, 11);
    painter.drawPath(back);
    QPainterPath front;
    front.moveTo(3, 19);
    front.lineTo(6.5, 11);
    front.lineTo(22, 11);
    front.lineTo(18.5, 19);
    front.closeSubpath();
    painter.drawPath(front);
}

void drawPicture(QPainter& painter) {
    painter.drawRoundedRect(QRectF(3, 5, 18, 14), 2, 2);
    painter.drawEllipse(QPointF(8, 9.5), 1.4, 1.4);
    painter.drawPolyline(QPolygonF{{4, 17}, {9.5, 12}, {12.5, 15}, {16, 11}, {20.5, 16}});
}

void drawFit(QPainter& painter) {
    for (const QPointF& corner : {QPointF(4, 4), QPointF(20, 4), QPointF(4, 20), QPointF(20, 20)}) {
        const double inX = corner.x() < 12 ? 5 : -5;
        const double inY = corner.y() < 12 ? 5 : -5;
        painter.drawPolyline(QPolygonF{corner + QPointF(inX, 0), corner, corner + QPointF(0, inY)});
    }
    painter.drawRect(QRectF(9, 9, 6, 6));
}

void drawPerspective(QPainter& painter) {
    painter.drawRect(QRectF(9.5, 6, 5, 5));
    painter.drawPolygon(QPolygonF{{4, 19}, {20, 19}, {14.5, 11}, {9.5, 11}});
    painter.drawLine(QPointF(12, 11), QPointF(12, 19));
}

void drawLoop(QPainter& painter) {
    painter.drawArc(QRectF(5, 5, 14, 14), 40 * 16, 285 * 16);
    QPainterPath head;
    head.moveTo(21, 10.5);
    head.lineTo(14.5, 10.5);
    head.lineTo(18.5, 4.5);
    head.closeSubpath();
    painter.fillPath(head, painter.pen().color());
}

void drawSidebar(QPainter& painter) {
    painter.drawRoundedRect(QRectF(3, 5, 18, 14), 2, 2);
    painter.drawLine(QPointF(9, 5), QPointF(9, 19));
    for (const double y : {8.5, 12.0, 15.5}) {
        painter.drawLine(QPointF(5.2, y), QPointF(6.8, y));
    }
}

void drawLetter(QPainter& painter, const char* letter, const QColor& color) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(17);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(painter.pen().color().alpha() < 255 ? painter.pen().color() : color);
    painter.drawText(QRectF(0, 0, canvas, canvas), Qt::AlignCenter, QString::fromLatin1(letter));
}

void draw(QPainter& painter, Icon which) {
    switch (which) {
    case Icon::Open:
        return drawOpen(painter);
    case Icon::Picture:
        return drawPicture(painter);
    case Icon::Fit:
        return drawFit(painter);
    case Icon::Perspective:
        return drawPerspective(painter);
    case Icon::First:
        drawBar(painter, 4);
        return drawTriangle(painter, 8, 19);
    case Icon::StepBack:
        drawBar(painter, 16);
        return drawTriangle(painter, 3, 14);
    case Icon::Play:
        return drawTriangle(painter, 19, 7);
    case Icon::Pause:
        drawBar(painter, 7);
        return drawBar(painter, 14);
    case Icon::StepForward:
        drawBar(painter, 5);
        return drawTriangle(painter, 21, 10);
    case Icon::Last:
        drawTriangle(painter, 16, 5);
        return drawBar(painter, 17);
    case Icon::Loop:
        return drawLoop(painter);
    case Icon::Sidebar:
        return drawSidebar(painter);
    case Icon::AxisX:
        return drawLetter(painter, "X", QColor(0xd0, 0x3b, 0x3b));
    case Icon::AxisY:
        return drawLetter(painter, "Y", QColor(0x2f, 0x96, 0x47));
    case Icon::AxisZ:
        return drawLetter(painter, "Z", QColor(0x35, 0x78, 0xd6));
    }
}

class PaletteIcon : public QIconEngine {
public:
    explicit PaletteIcon(Icon which) : m_which(which) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QColor color = QGuiApplication::palette().color(QPalette::Active, QPalette::WindowText);
        if (mode == QIcon::Disabled) {
            color.setAlphaF(0.35F);
        }
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / canvas, rect.height() / canvas);
        painter->setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        draw(*painter, m_which);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new PaletteIcon(m_which); }

private:
    Icon m_which;
};

} // namespace

QIcon icon(Icon which) {
    return QIcon(new PaletteIcon(which));
}

QIcon programIcon() {
    constexpr int size = 64;
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0x1f, 0x4e, 0x79));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 14, 14);
    QPainterPath flight;
    flight.moveTo(10, 46);
    flight.cubicTo(24, 8, 40, 60, 54, 18);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(flight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xc8, 0x57));
    for (const double part : {0.0, 0.5, 1.0}) {
        painter.drawEllipse(flight.pointAtPercent(part), 5.5, 5.5);
    }
    return QIcon(pixmap);
}

} // namespace corvane::gui
