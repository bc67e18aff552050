#include "host/gui/controls/ValueSlider.h"

#include "host/gui/controls/NumberEdit.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>
#include <cmath>

namespace corvane::gui {

namespace {

constexpr int positions = 1000;

/// Rounds to about three digits of the range, to values that a user would type.
double rounded(double value, double range) {
    if (!(range > 0.0)) {
        return value;
    }
    const double step = std::pow(10.0, std::floor(std::log10(range)) - 3.0);
    return QString::number(std::round(value / step) * step, 'g', 12).toDouble();
}

} // namespace

ValueSlider::ValueSlider(QWidget* parent)
    : QWidget(parent), m_slider(new QSlider(Qt::Horizontal)), m_edit(new NumberEdit) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_slider, 1);
    row->addWidget(m_edit);
    setFocusProxy(m_edit);
    m_slider->setRange(0, positions);
    m_slider->setPageStep(positions / 10);
    m_slider->setSingleStep(positions / 100);
    m_slider->setTracking(false);
    m_slider->setMinimumWidth(60);
    connect(m_slider, &QSlider::sliderPressed, this, [this] { m_isDragged = false; });
    connect(m_slider, &QSlider::sliderMoved, this, [this](int position) {
        m_isDragged = true;
        m_edit->setValue(valueAt(position));
        Q_EMIT dragged(valueAt(position));
    });
    connect(m_slider, &QSlider::valueChanged, this, [this](int position) {
        m_edit->setValue(valueAt(position));
        Q_EMIT committed(valueAt(position));
    });
    connect(m_slider, &QSlider::sliderReleased, this, [this] {
        // No valueChanged when the slider is back where it started, although drags were previewed.
        const int position = m_slider->sliderPosition();
        if (m_isDragged && position == m_slider->value()) {
            Q_EMIT committed(valueAt(position));
        }
    });
    connect(m_edit, &NumberEdit::committed, this, [this](double value) {
        moveSlider();
        Q_EMIT committed(value);
    });
}

void ValueSlider::setRange(double minimum, double maximum) {
    m_minimum = minimum;
    m_maximum = maximum;
    moveSlider();
}

void ValueSlider::setValue(double value) {
    m_edit->setValue(value);
    moveSlider();
}

double ValueSlider::valueAt(int position) const {
    const double range = m_maximum - m_minimum;
    const double value = m_minimum + range * position / positions;
    return std::clamp(rounded(value, range), m_minimum, std::max(m_minimum, m_maximum));
}

void ValueSlider::moveSlider() {
    if (m_slider->isSliderDown()) {
        return;
    }
    const QSignalBlocker quiet(m_slider);
    const double range = m_maximum - m_minimum;
    const double part = range > 0.0 ? (m_edit->value() - m_minimum) / range : 0.0;
    m_slider->setValue(static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * positions)));
}

} // namespace corvane::gui
