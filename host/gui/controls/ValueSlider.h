// A slider combined with a number field.
#pragma once

#include <QWidget>

class QSlider;

namespace corvane::gui {

class NumberEdit;

class ValueSlider : public QWidget {
    Q_OBJECT

public:
    explicit ValueSlider(QWidget* parent = nullptr);

    /// The range of the slider. Numbers outside of it can be typed.
    void setRange(double minimum, double maximum);
    /// Emits no signal.
    void setValue(double value);

    QSlider& slider() const { return *m_slider; }
    NumberEdit& edit() const { return *m_edit; }

Q_SIGNALS:
    void dragged(double value); ///< while the slider is being moved
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
