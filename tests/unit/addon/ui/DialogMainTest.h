// A test with the process-wide main dialog, which is left as it was found.
#pragma once

#include "addon/ui/DialogMain.h"
#include "tests/support/HostTest.h"
#include "tests/unit/addon/RegisteredAddOn.h"
#include "tests/unit/addon/file/KeyFrameTexts.h"

namespace corvane::test {

class DialogMainTest : public HostTest {
protected:
    DialogMainTest()
        : dialog(corutiltools::DialogMain::instance()), m_currentFile(dialog.currentFile()) {
        host.clearCalls();
    }

    void TearDown() override {
        dialog.currentFile() = m_currentFile;
        dialog.applySettings(defaultSettings());
        dialog.applyDataModel(ListModelKeyFrame());
        HostTest::TearDown();
    }

    const RegisteredAddOn registration;
    corutiltools::DialogMain& dialog;

private:
    const corutiltools::CurrentFileManager m_currentFile;
};

} // namespace corvane::test
