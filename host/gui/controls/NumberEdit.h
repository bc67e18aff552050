// A text field for a number of any magnitude.
#pragma once

#include <QLineEdit>

namespace corvane::gui {

/// Shows six digits and keeps full precision. An entry is committed by Return or when the field
/// loses the focus; one that is not a number is reverted.
class NumberEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit NumberEdit(QWidget* parent = nullptr);

    double value() const { return m_value; }
    /// Emits no signal, and leaves alone what the user is typing.
    void setValue(double value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override {
        return {fontMetrics().averageCharWidth() * 7, sizeHint().height()};
    }

Q_SIGNALS:
    void committed(double value);

private:
    void commit();

    double m_value = 0.0;
};

} // namespace corvane::gui
