// The main window: menu bar, drawing area, sidebar and status line.
#pragma once

#include <QMainWindow>
#include <QStringList>

class QMenu;

namespace corvane::gui {

class DrawingArea;
class ProgressStrip;

/// Lays out its parts and knows no host.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();

    DrawingArea& drawingArea() const { return *m_drawingArea; }
    ProgressStrip& progressStrip() const { return *m_strip; }
    /// The menu with this title (without '&') in the menu bar; created when there is none.
    QMenu& menu(const QString& title);
    /// Resizes the window so that the picture gets this size, if the screen is large enough.
    void resizePicture(QSize pixels);
    /// Puts a bar below the drawing area.
    void addBottomBar(QWidget& bar);

Q_SIGNALS:
    void filesDropped(const QStringList& files); ///< local files, at least one

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeMenus();

    DrawingArea* m_drawingArea;
    ProgressStrip* m_strip;
};

} // namespace corvane::gui
