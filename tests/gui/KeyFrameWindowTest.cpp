// A test with the add-on in a real main window.
#include "tests/gui/KeyFrameWindowTest.h"
#include "host/core/session/AddOnLoader.h"

#include "host/gui/view/DrawingArea.h"
#include "tests/support/Folders.h"

#include <QtTest>
#include <filesystem>

namespace corvane::test {

KeyFrameWindowTest::KeyFrameWindowTest(const WindowSurroundings& surroundings)
    : WindowTest(surroundings) {}

void KeyFrameWindowTest::SetUp() {
    loadAddOn();
    openData();
}

void KeyFrameWindowTest::loadAddOn() {
    // A library stays loaded, with its dialogs and key frames: each test has one of its own.
    const std::string library = folder.file("libKeyFrameAnimation.so");
    std::filesystem::copy_file(builtAddOn(), library);
    host::loadAddOn(session(), library);
}

void KeyFrameWindowTest::chooseByKeys(Qt::Key menu, Qt::Key entry) {
    window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    DialogUser::chooseByKeys(window(), menu, entry);
}

DialogUser KeyFrameWindowTest::openDialog() {
    chooseByKeys(Qt::Key_A, Qt::Key_K);
    return DialogUser(title);
}

void KeyFrameWindowTest::turn() {
    const QPoint middle = drawingArea().rect().center();
    drag(Qt::LeftButton, middle, middle + QPoint(60, 20));
    settle();
}

void KeyFrameWindowTest::capture(const DialogUser& dialog, int count) {
    for (int made = 0; made < count; ++made) {
        const auto before = dialog.rows();
        dialog.click(QStringLiteral("Append"));
        EXPECT_TRUE(waitUntil([&] { return dialog.rows() != before; }));
        turn();
    }
}

void KeyFrameWindowTest::playAnd(const DialogUser& dialog, const QString& button,
                                 const std::function<void()>& action) {
    renderer.clear();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &window(), [&] {
        if (session().status().isActive() && renderer.renders() >= 5) {
            look.stop();
            action();
        }
    });
    look.start(5);
    dialog.click(button);
    EXPECT_FALSE(look.isActive()) << "it did not play";
    settle();
}

void KeyFrameWindowTest::runCommand(const std::string& command) {
    program().perform("EXTCOMMAND", {"Key Frame Animation", command});
}

} // namespace corvane::test
