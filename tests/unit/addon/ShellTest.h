// A test with the registered add-on and dialogs that nobody has used.
#pragma once

#include "tests/support/HostTest.h"
#include "tests/unit/addon/RegisteredAddOn.h"
#include "tests/unit/addon/ui/FreshDialogs.h"

namespace corvane::test {

class ShellTest : public HostTest {
protected:
    ShellTest() { host.clearCalls(); }

    int lockDepth() { return host.session().locks().depth(); }

    const RegisteredAddOn registration;
    const FreshDialogs prompts;
};

} // namespace corvane::test
