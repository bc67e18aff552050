// The main window as furniture: menu bar, drawing area, side and bottom, without a host behind it.
#pragma once

#include <QMainWindow>
#include <QStringList>
#include <functional>

class QMenu;

namespace corvane::gui {

class DrawingArea;
class ProgressStrip;

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();

    DrawingArea& drawingArea() const { return *m_drawingArea; }
    ProgressStrip& progressStrip() const { return *m_strip; }
    /// The menu of the menu bar with this title (without '&'); made when there is none.
    QMenu& menu(const QString& title);
    /// Puts a bar below the drawing area.
    /// Resizes the window so that the picture gets this size, where the screen allows it.
    void resizePicture(QSize pixels);
    void addBottomBar(QWidget& bar);

    std::function<void(const QStringList&)> onFilesDropped;
    std::function<bool()> mayClose;
    std::function<void()> onClosed;

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeMenus();

    DrawingArea* m_drawingArea;
    ProgressStrip* m_strip;
};

} // namespace corvane::gui
