#include "host/gui/widgets/DialogUnits.h"

#include <QFontMetricsF>
#include <QtMath>

namespace corvane::gui {

namespace {

int pixels(int units, double hundred) {
    return qRound(units * hundred / 100.0);
}

} // namespace

DialogUnits::DialogUnits(const QFont& font)
    : m_characterWidth(QFontMetricsF(font).averageCharWidth()),
      m_lineHeight(QFontMetricsF(font).lineSpacing()) {}

int DialogUnits::across(int units) const {
    return pixels(units, m_characterWidth);
}

int DialogUnits::down(int units) const {
    return pixels(units, m_lineHeight);
}

QRect DialogUnits::rect(const host::Box& box) const {
    return {across(box.x), down(box.y), across(box.width), down(box.height)};
}

} // namespace corvane::gui
