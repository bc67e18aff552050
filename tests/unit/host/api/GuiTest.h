// A host with two dialogs whose callbacks write down what they were told.
#pragma once

#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"
#include "tests/support/NotedCallbacks.h"

#include <functional>
#include <string>
#include <vector>

namespace corvane::test {

class GuiTest : public EmptyHostTest, protected NotedCallbacks {
protected:
    GuiTest();

    /// A modeless dialog "Kites" and a modal one "Knots", both hidden, without controls.
    int kites;
    int knots;
    MemoryDialog kitesDialog() { return host.gui().dialog("Kites"); }
    MemoryDialog knotsDialog() { return host.gui().dialog("Knots"); }
    /// Launched; what its init was told is forgotten.
    MemoryDialog launchKites();
    MemoryDialog launchKnots();
    int addField(int dialog) { return CorGUITextFieldAdd(dialog, 0, 0, 900, 145, &text); }
};

} // namespace corvane::test
