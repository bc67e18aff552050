#include "host/app/AddOnExit.h"

#include "host/app/ExitCode.h"
#include "host/app/Messages.h"
#include "host/core/session/AddOnCallGuard.h"

#include <cstdlib>
#include <string>

namespace corvane::app {

namespace {

void lookWhoExits() {
    const std::string call = host::addOnCallUnderway();
    if (!call.empty()) {
        say("An add-on ended the program: exit() was called in " + call +
            "; what was not complete was not written.");
        std::_Exit(ExitFailed);
    }
}

} // namespace

void distrustExitOfAddOns() {
    std::atexit(lookWhoExits);
}

} // namespace corvane::app
