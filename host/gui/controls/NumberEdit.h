// A field for one number of any size.
#pragma once

#include <QLineEdit>

namespace corvane::gui {

/// Shows six digits and keeps all. An entry counts when it is committed, by Return or when the
/// focus leaves; one that is no number is taken back.
class NumberEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit NumberEdit(QWidget* parent = nullptr);

    double value() const { return m_value; }
    /// Fires nothing.
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
