// A slider and a number field for one value.
#pragma once

#include <QWidget>

class QSlider;

namespace corvane::gui {

class NumberEdit;

class ValueSlider : public QWidget {
    Q_OBJECT

public:
    explicit ValueSlider(QWidget* parent = nullptr);

    /// Of the slider. Numbers outside can be typed.
    void setRange(double minimum, double maximum);
    /// Fires nothing.
    void setValue(double value);

    QSlider& slider() const { return *m_slider; }
    NumberEdit& edit() const { return *m_edit; }

Q_SIGNALS:
    void dragged(double value); ///< the slider is on its way
    void committed(double value);

private:
    double valueAt(int position) const;
    void moveSlider();

    QSlider* m_slider;
    NumberEdit* m_edit;
    double m_minimum = 0.0;
    double m_maximum = 1.0;
    bool m_isDragged = false;
};

} // namespace corvane::gui
