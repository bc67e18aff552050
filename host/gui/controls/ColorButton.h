// A button that shows a color and lets the user choose another.
#pragma once

#include <QColor>
#include <QToolButton>

namespace corvane::gui {

class ColorButton : public QToolButton {
    Q_OBJECT

public:
    explicit ColorButton(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    /// Emits no signal.
    void setColor(const QColor& color);

Q_SIGNALS:
    void committed(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void ask();

    QColor m_color;
};

} // namespace corvane::gui
