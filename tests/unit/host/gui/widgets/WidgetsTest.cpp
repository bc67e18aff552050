// A host whose add-ons get real widgets, and a user with mouse and keyboard.
#include "tests/unit/host/gui/widgets/WidgetsTest.h"

#include <QApplication>
namespace corvane::test {

void startQt() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static int count = 1;
    static char name[] = "test";
    static char* names[] = {name, nullptr};
    // Never destroyed: widgets of Qt's own outlive what is static here.
    static auto* const application = new QApplication(count, names);
    application->setEffectEnabled(Qt::UI_AnimateCombo, false);
}

WidgetsTest::WidgetsTest()
    : mainWindow((startQt(), nullptr)),
      kites(CorGUIDialogCreateModeless(COR_HANDLE_MAIN_WINDOW, 4000, 2000, "Kites", &init, &close,
                                       &help)),
      knots(CorGUIDialogCreateModal(COR_HANDLE_MAIN_WINDOW, 3000, 1000, "Knots", &init, &ok, &apply,
                                    &cancel, nullptr)) {
    mainWindow.show();
}

WidgetsTest::~WidgetsTest() {
    session.quit();
    settle();
}

void WidgetsTest::launch(int dialog) const {
    CorGUIDialogLaunch(dialog);
    QWidget* const window = widgets.widget(dialog);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    take();
}

void WidgetsTest::settle() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Timers of no length that are started meanwhile run in the second round.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void WidgetsTest::click(QWidget* widget) {
    QTest::mouseClick(widget, Qt::LeftButton);
    settle();
}

} // namespace corvane::test
