// Shows the last picture of the page.
#pragma once

#include <QImage>
#include <QWidget>

namespace corvane::host {
struct Picture;
}

namespace corvane::gui {

/// Paints the picture it was given, never the current state of the host, which may be in the middle
/// of a change.
class DrawingArea : public QWidget {
    Q_OBJECT

public:
    explicit DrawingArea(QWidget* parent = nullptr);

    /// Paints the picture before returning, if the window is visible at all.
    void show(host::Picture picture);
    using QWidget::show;
    const QImage& image() const { return m_image; }

    /// What is shown while there is no picture.
    void setHint(const QString& title, const QString& text);
    void clear();

    QSize pixels() const; ///< the size in device pixels

    QSize sizeHint() const override { return {960, 600}; }
    QSize minimumSizeHint() const override { return {240, 160}; }

Q_SIGNALS:
    void resized();

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
