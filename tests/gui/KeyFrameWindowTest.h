// A test with the add-on in a real main window.
#pragma once

#include "tests/gui/DialogUser.h"
#include "tests/gui/WindowTest.h"
#include "tests/support/TempFolder.h"

#include <functional>
#include <string>

namespace corvane::test {

class KeyFrameWindowTest : public WindowTest {
protected:
    explicit KeyFrameWindowTest(const WindowSurroundings& surroundings = {});

    /// With data in the window and the add-on loaded.
    void SetUp() override;
    void loadAddOn();

    /// In a menu of the main window.
    void chooseByKeys(Qt::Key menu, Qt::Key entry);
    void record() { chooseByKeys(Qt::Key_M, Qt::Key_R); }
    /// By the Animate menu.
    DialogUser openDialog();
    /// Key frames one after another, the view turned between them.
    void capture(const DialogUser& dialog, int count);
    void turn(); ///< the view, with the mouse
    /// Presses a button that plays, and does something once some pictures have been seen.
    void playAnd(const DialogUser& dialog, const QString& button,
                 const std::function<void()>& action);
    /// As for a macro: without windows.
    void runCommand(const std::string& command);
    std::vector<std::string> errors() const { return prompts.shown(ShownDialog::Kind::Error); }
    std::vector<std::string> notices() const { return prompts.shown(ShownDialog::Kind::Notice); }

    const QString title = QStringLiteral("Key Frame Animation");
    const TempFolder folder;
};

} // namespace corvane::test
