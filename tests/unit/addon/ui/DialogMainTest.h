// A test with the process-wide main dialog, as in a process that has not used it.
#pragma once

#include "addon/ui/DialogMain.h"
#include "tests/support/HostTest.h"
#include "tests/unit/addon/RegisteredAddOn.h"
#include "tests/unit/addon/file/KeyFrameTexts.h"
#include "tests/unit/addon/ui/FreshDialogs.h"

namespace corvane::test {

class DialogMainTest : public HostTest {
protected:
    DialogMainTest() : dialog(corutiltools::DialogMain::instance()) { host.clearCalls(); }

    const RegisteredAddOn registration;
    const FreshDialogs prompts;
    corutiltools::DialogMain& dialog;
};

} // namespace corvane::test
