// A host with two dialogs whose callbacks write down what they were told.
#include "tests/unit/host/api/GuiTest.h"

namespace corvane::test {

GuiTest::GuiTest()
    : kites(CorGUIDialogCreateModeless(COR_HANDLE_MAIN_WINDOW, 4000, 2000, "Kites", &init, &close,
                                       &help)),
      knots(CorGUIDialogCreateModal(COR_HANDLE_MAIN_WINDOW, 3000, 1000, "Knots", &init, &ok, &apply,
                                    &cancel, nullptr)) {}

MemoryDialog GuiTest::launchKites() {
    CorGUIDialogLaunch(kites);
    take();
    return kitesDialog();
}

MemoryDialog GuiTest::launchKnots() {
    CorGUIDialogLaunch(knots);
    take();
    return knotsDialog();
}

} // namespace corvane::test
