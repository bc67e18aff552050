// Shows the last picture of the page.
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

namespace corvane::host {
struct Picture;
}

namespace corvane::gui {

/// Paints what it was given, whatever the state of the host: a picture of half a change would be
/// wrong.
class DrawingArea : public QWidget {
    Q_OBJECT

public:
    explicit DrawingArea(QWidget* parent = nullptr);

    /// Shows the picture before it returns, if the window is on the screen at all.
    void show(host::Picture picture);
    using QWidget::show;
    const QImage& image() const { return m_image; }

    /// What stands there as long as there is no picture.
    void setHint(const QString& title, const QString& text);
    void clear();

    QSize pixels() const; ///< of the screen

    std::function<void()> onResized;

    QSize sizeHint() const override { return {960, 600}; }
    QSize minimumSizeHint() const override { return {240, 160}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void paintHint(QPainter& painter) const;
    QRect placeOf(QSize picture) const;

    QImage m_image;
    QString m_hintTitle;
    QString m_hintText;
};

} // namespace corvane::gui
