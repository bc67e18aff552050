// The add-on's entry point.
#include "addon/macro/MacroManager.h"
#include "addon/shell/AddOnID.h"
#include "addon/shell/AddOnName.h"
#include "hostapi/CorHost.h"

namespace {

constexpr int hostInterfaceNumber = 110;

// There is no add-on to lock for before it is registered, so the entry point has a lock of its own.
struct LoadLock {
    LoadLock() { CorUtilLockOn(); }
    ~LoadLock() { CorUtilLockOff(); }

    LoadLock(LoadLock const&) = delete;
    LoadLock& operator=(LoadLock const&) = delete;
};

} // namespace

void InitCorAddOn113() {
    using namespace corvane::corutiltools;
    LoadLock const lock;
    AddOnID =
        CorUtilAddOnRegister(hostInterfaceNumber, AddOnName, CORVANE_VERSION, "Corvane, Inc.");
    MacroManager::registerCallback();
}
