// The add-on's option in the host's menus.
#include "addon/shell/MenuOption.h"

#include "addon/base/HostLock.h"
#include "addon/ui/DialogMain.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

namespace {

constexpr char menu[] = "Animate";
constexpr char label[] = "&Key Frame Animation...";

// Hosts may give these codes meanings of their own; they are known by number alone.
bool canChangeTheOption(StateChange_e state) {
    switch (static_cast<int>(state)) {
    case 2:
    case 3:
    case 5:
    case 6:
    case 7:
    case 8:
    case 9:
    case 44:
    case 50:
    case 51:
        return true;
    default:
        return false;
    }
}

} // namespace

bool pendingUpdateFuncOnIdle = false;

void addMenuOption() {
    CorUtilMenuAddOption(menu, label, 1, DialogMain::launch);
}

void updateMenuOption() {
    const bool isUsable =
        CorUtilFrameGetCount() > 0 && CorUtilDataSetIsAvailable() && DialogMain::okToLaunch();
    CorUtilMenuSetSensitivity(menu, label, isUsable);
}

void StateChangeCallback(StateChange_e state) {
    if (pendingUpdateFuncOnIdle || !canChangeTheOption(state)) {
        return;
    }
    pendingUpdateFuncOnIdle = true;
    const HostLock lock;
    CorUtilOnIdleQueueAddCallback(onIdleCallback, 0);
}

void onIdleCallback(long) {
    struct Clearing {
        ~Clearing() { pendingUpdateFuncOnIdle = false; }
    };
    const Clearing afterwards;
    const HostLock lock;
    updateMenuOption();
}

} // namespace corvane::corutiltools
