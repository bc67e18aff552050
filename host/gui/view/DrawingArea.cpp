#include "host/gui/view/DrawingArea.h"

#include "host/core/ports/Picture.h"

#include <QPainter>
#include <QStyle>
#include <memory>

namespace corvane::gui {

namespace {

/// The image takes over the picture's memory; nothing is copied.
QImage imageOf(host::Picture picture) {
    auto owned = std::make_unique<host::Picture>(std::move(picture));
    const auto release = [](void* kept) { delete static_cast<host::Picture*>(kept); };
    const QImage image(owned->rgba.data(), owned->width, owned->height, 4 * owned->width,
                       QImage::Format_RGBX8888, release, owned.get());
    if (!image.isNull()) {
        static_cast<void>(owned.release());
    }
    return image;
}

} // namespace

DrawingArea::DrawingArea(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("drawingArea"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void DrawingArea::show(host::Picture picture) {
    m_image = imageOf(std::move(picture));
    repaint();
}

void DrawingArea::setHint(const QString& title, const QString& text) {
    m_hintTitle = title;
    m_hintText = text;
    update();
}

void DrawingArea::clear() {
    m_image = {};
    update();
}

QSize DrawingArea::pixels() const {
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void DrawingArea::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (m_image.isNull()) {
        paintHint(painter);
        return;
    }
    // After a resize the old picture stays until the new one is drawn, and a macro that plays may
    // have chosen a picture of another shape.
    const QRect place = placeOf(m_image.size());
    if (place != rect()) {
        painter.fillRect(rect(), palette().window());
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform, m_image.size() != pixels());
    painter.drawImage(QRectF(place), m_image, QRectF(m_image.rect()));
}

/// As large as possible, centered. Rounding must not leave a gap at the sides.
QRect DrawingArea::placeOf(QSize picture) const {
    const QSize fitting = picture.scaled(size(), Qt::KeepAspectRatio);
    const bool fills = (size() - fitting).width() <= 1 && (size() - fitting).height() <= 1;
    return fills ? rect() : QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, fitting, rect());
}

void DrawingArea::paintHint(QPainter& painter) const {
    painter.fillRect(rect(), palette().window());
    QFont large = font();
    large.setPointSizeF(1.6 * large.pointSizeF());
    QColor color = palette().color(QPalette::WindowText);
    const int middle = height() / 2;
    painter.setFont(large);
    painter.setPen(color);
    painter.drawText(QRect(0, 0, width(), middle), Qt::AlignHCenter | Qt::AlignBottom, m_hintTitle);
    color.setAlphaF(0.65F);
    painter.setFont(font());
    painter.setPen(color);
    const int gap = painter.fontMetrics().height() / 2;
    painter.drawText(QRect(0, middle + gap, width(), middle - gap), Qt::AlignHCenter | Qt::AlignTop,
                     m_hintText);
}

void DrawingArea::resizeEvent(QResizeEvent* /*event*/) {
    Q_EMIT resized();
}

} // namespace corvane::gui
