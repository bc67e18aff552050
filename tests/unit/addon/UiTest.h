// Tests of what the user sees of the add-on.
#pragma once

#include "tests/support/HostTest.h"
#include "tests/unit/addon/RegisteredAddOn.h"
#include "tests/unit/addon/ui/FreshDialogs.h"

#include <string>
#include <vector>

namespace corvane::test {

// A host with windows, and dialogs that nobody has used.
class UiTest : public HostTest {
protected:
    int lockDepth() { return host.session().locks().depth(); }

    std::vector<std::string> errors() { return shown(ShownDialog::Kind::Error); }
    std::vector<std::string> notices() { return shown(ShownDialog::Kind::Notice); }

    const RegisteredAddOn registration;
    const FreshDialogs prompts;

private:
    std::vector<std::string> shown(ShownDialog::Kind kind) { return host.prompts().shown(kind); }
};

// A dialog that is up, for controls to be tried in.
class ControlTest : public UiTest {
protected:
    ControlTest()
        : dialog(CorGUIDialogCreateModeless(COR_HANDLE_MAIN_WINDOW, 1000, 1000, "Test", nullptr,
                                            nullptr, nullptr)) {
        CorGUIDialogLaunch(dialog);
    }

    MemoryDialog window() { return host.gui().dialog(dialog); }

    const int dialog;
};

// The main dialog, up and refreshed.
class DialogMainWindowTest : public UiTest {
protected:
    DialogMainWindowTest() {
        corutiltools::DialogMain::launch();
        host.runIdle();
        host.clearCalls();
    }

    corutiltools::DialogMain& dialog() { return corutiltools::DialogMain::instance(); }
    corutiltools::ListModelKeyFrame& model() { return dialog().model(); }
    MemoryDialog window() { return host.gui().dialog("Key Frame Animation"); }

    void click(const std::string& button) {
        window().button(button).click();
        host.runIdle();
    }

    // From 1.
    void select(const std::vector<long>& positions) {
        window().list().select(positions);
        host.runIdle();
    }

    // Captures that many key frames by the user's hand.
    void capture(int count) {
        for (int index = 0; index < count; ++index) {
            click("Append");
        }
    }

    void enter(const std::string& label, const std::string& text) {
        window().field(label).type(text);
        window().field(label).commit();
        host.runIdle();
    }

    void setFrameCounts(const std::vector<unsigned long>& counts) {
        for (unsigned long index = 0; index < counts.size(); ++index) {
            model().setFrameCount(index, counts[index]);
        }
    }

    std::vector<unsigned long> frameCounts() {
        std::vector<unsigned long> counts;
        for (unsigned long index = 0; index < model().size(); ++index) {
            counts.push_back(model().frameCount(index));
        }
        return counts;
    }

    std::vector<std::string> rows() { return window().list().rows(); }
    std::string fieldText(const std::string& label) { return window().field(label).text(); }
};

} // namespace corvane::test
