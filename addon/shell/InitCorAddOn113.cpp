// The add-on's entry point.
#include "addon/base/AddOnID.h"
#include "addon/base/AddOnName.h"
#include "addon/macro/MacroManager.h"
#include "addon/shell/MenuOption.h"
#include "addon/ui/DialogLayout.h"
#include "hostapi/CorHost.h"
#include "hostapi/toolbox/ArgList.h"

namespace {

constexpr int hostInterfaceNumber = 110;

// There is no add-on to lock for before it is registered, so the entry point has a lock of its own.
struct LoadLock {
    LoadLock() { CorUtilLockOn(); }
    ~LoadLock() { CorUtilLockOff(); }

    LoadLock(const LoadLock&) = delete;
    LoadLock& operator=(const LoadLock&) = delete;
};

void listenToStateChanges() {
    corvane::toolbox::ArgList args;
    args.appendFunction("CallbackFunction", reinterpret_cast<CorGenericFunc>(
                                                corvane::corutiltools::StateChangeCallback));
    args.appendInt("StateChangeMode", StateChangeMode_Synchronous);
    args.appendInt("StateChangeCallbackAPI", 1);
    CorUtilStateChangeAddCallbackX(args.handle());
}

} // namespace

void InitCorAddOn113() {
    using namespace corvane::corutiltools;
    const LoadLock lock;
    InitCGB();
    AddOnID =
        CorUtilAddOnRegister(hostInterfaceNumber, AddOnName, CORVANE_VERSION, "Corvane, Inc.");
    addMenuOption();
    MacroManager::registerCallback();
    listenToStateChanges();
    updateMenuOption();
}
