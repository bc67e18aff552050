// The add-on's dialogs as in a process that has not used them.
#pragma once

#include "addon/shell/MenuOption.h"
#include "addon/ui/DialogExportOptions.h"
#include "addon/ui/DialogLayout.h"
#include "addon/ui/DialogMain.h"
#include "addon/ui/DialogTimeOptions.h"

namespace corvane::test {

// Handles end with their host, and the dialogs live as long as the process: each test with a host
// of its own needs dialogs of its own. Must die before the host.
class FreshDialogs {
public:
    FreshDialogs() { forget(); }
    ~FreshDialogs() { forget(); }

    FreshDialogs(const FreshDialogs&) = delete;
    FreshDialogs& operator=(const FreshDialogs&) = delete;

private:
    static void forget() {
        using namespace corutiltools;
        DialogMain::m_instance.reset();
        DialogTimeOptions::m_instance.reset();
        DialogExportOptions::m_instance.reset();
        DialogMain::menuIsBuilt = false;
        InitCGB();
        pendingUpdateFuncOnIdle = false;
    }
};

} // namespace corvane::test
