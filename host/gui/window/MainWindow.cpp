#include "host/gui/window/MainWindow.h"

#include "host/gui/status/ProgressStrip.h"
#include "host/gui/view/DrawingArea.h"

#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>
#include <QVBoxLayout>

namespace corvane::gui {

namespace {

QStringList localFiles(const QMimeData& data) {
    QStringList files;
    const auto urls = data.urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
}

QString withoutMnemonic(QString title) {
    return title.remove(QLatin1Char('&'));
}

} // namespace

MainWindow::MainWindow() : m_drawingArea(new DrawingArea), m_strip(new ProgressStrip) {
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(QStringLiteral("Corvane"));
    setAcceptDrops(true);
    setUnifiedTitleAndToolBarOnMac(true);
    auto* const center = new QWidget;
    auto* const column = new QVBoxLayout(center);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_drawingArea, 1);
    setCentralWidget(center);
    statusBar()->addWidget(m_strip, 1);
    statusBar()->setContentsMargins(0, 0, 0, 0);
    makeMenus();
    resize(1280, 800);
}

void MainWindow::makeMenus() {
    // All at once, so that their order does not depend on who adds the first entry.
    for (const char* title :
         {"&File", "&Edit", "&View", "&Plot", "F&rame", "&Data", "&Animate", "&Macro", "&Help"}) {
        menuBar()->addMenu(QString::fromLatin1(title));
    }
}

QMenu& MainWindow::menu(const QString& title) {
    const auto actions = menuBar()->actions();
    for (const QAction* const action : actions) {
        if (action->menu() != nullptr && withoutMnemonic(action->text()) == title) {
            return *action->menu();
        }
    }
    return *menuBar()->addMenu(title);
}

void MainWindow::addBottomBar(QWidget& bar) {
    centralWidget()->layout()->addWidget(&bar);
}

void MainWindow::resizePicture(QSize pixels) {
    const QSize wanted = (QSizeF(pixels) / devicePixelRatioF()).toSize();
    resize(size() + wanted - m_drawingArea->size());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!localFiles(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QStringList files = localFiles(*event->mimeData());
    event->acceptProposedAction();
    if (!files.isEmpty()) {
        Q_EMIT filesDropped(files);
    }
}

} // namespace corvane::gui
