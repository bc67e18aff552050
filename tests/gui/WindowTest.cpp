// A test with a real main window over a host whose pictures and data are made in memory.
#include "tests/gui/WindowTest.h"

#include "host/gui/view/DrawingArea.h"

#include <QApplication>
#include <QSettings>
#include <QtTest>

namespace corvane::test {

namespace {

constexpr int patienceMs = 10000;

template <typename Port>
Port& orElse(Port* given, Port& fromMemory) {
    return given != nullptr ? *given : fromMemory;
}

void makeQtApplication() {
    static int count = 1;
    static std::string name = "gui_window";
    static char* arguments[] = {name.data(), nullptr};
    // Never destroyed: widgets of Qt's own outlive what is static here.
    static auto* const application = new QApplication(count, arguments);
    application->setEffectEnabled(Qt::UI_AnimateCombo, false);
    QApplication::setOrganizationName(QStringLiteral("Corvane"));
    QApplication::setApplicationName(QStringLiteral("Corvane tests"));
    QApplication::setQuitOnLastWindowClosed(false);
}

} // namespace

WindowTest::WindowTest(const WindowSurroundings& surroundings) : m_surroundings(surroundings) {
    makeQtApplication();
    QSettings().clear();
    open();
}

void WindowTest::open() {
    m_windowedHost = std::make_unique<gui::WindowedHost>(gui::WindowedHostParts{
        .renderer = orElse<host::Renderer>(m_surroundings.renderer, renderer),
        .reader = orElse<host::DataReader>(m_surroundings.reader, reader),
        .movies = orElse<host::MovieWriters>(m_surroundings.movies, movies),
        .pictures = orElse<host::PictureFiles>(m_surroundings.pictures, pictures),
        .prompts = m_surroundings.hasRealDialogs ? nullptr : &prompts,
        .helpFolder = {}});
    window().show();
    if (!QTest::qWaitForWindowExposed(&window())) {
        throw std::runtime_error("The window does not come up.");
    }
    // Keys go to the active window, and there is no window manager that would make it so.
    window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    settle();
}

void WindowTest::startAgain() {
    m_windowedHost.reset();
    open();
}

void WindowTest::TearDown() {
    EXPECT_EQ(session().locks().depth(), 0);
    EXPECT_EQ(session().drawing().suspensions(), 0);
    EXPECT_FALSE(session().status().isActive());
}

gui::DrawingArea& WindowTest::drawingArea() {
    return window().drawingArea();
}

host::Frame& WindowTest::frame() {
    host::Frame* const active = session().silentPage().active();
    if (active == nullptr) {
        throw std::logic_error("The page has no frame.");
    }
    return *active;
}

void WindowTest::openData() {
    ASSERT_TRUE(controller().files().openData({QStringLiteral("flow.pvd")}));
    settle();
}

void WindowTest::settle() {
    QTest::qWait(1);
    EXPECT_TRUE(waitUntil([this] { return !session().drawing().isMarked(); }));
    QTest::qWait(1);
}

bool WindowTest::waitUntil(const std::function<bool()>& isSo) {
    return QTest::qWaitFor(isSo, patienceMs);
}

void WindowTest::drag(Qt::MouseButton button, QPoint from, QPoint to, Qt::KeyboardModifiers keys) {
    constexpr int steps = 10;
    QTest::mousePress(&drawingArea(), button, keys, from);
    for (int step = 1; step <= steps; ++step) {
        const QPointF at = QPointF(from) + QPointF(to - from) * step / steps;
        QMouseEvent move(QEvent::MouseMove, at, drawingArea().mapToGlobal(at), Qt::NoButton, button,
                         keys);
        QApplication::sendEvent(&drawingArea(), &move);
    }
    QTest::mouseRelease(&drawingArea(), button, keys, to);
}

} // namespace corvane::test
