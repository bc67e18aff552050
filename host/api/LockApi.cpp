// Locks.
#include "hostapi/CorLock.h"

#include "host/api/TracedCall.h"

using namespace corvane::host;

namespace {

void release(Application& app, const auto& call, CorAddOnID id) {
    if (app.locks().finish(id)) {
        app.drawing().drawIfDue();
    } else {
        call.misuse("no such lock is held");
    }
}

/// Locks under an id that was never given away count as those without an id.
CorAddOnID ownerOf(Application& app, const auto& call, CorAddOnID id) {
    if (id && !app.addOns().isKnown(id)) {
        call.misuse("unknown add-on");
        return nullptr;
    }
    return id;
}

} // namespace

void CorUtilLockOn(void) {
    TracedCall("CorUtilLockOn").perform([](Application& app) { app.locks().start(nullptr); });
}

void CorUtilLockOff(void) {
    const TracedCall call("CorUtilLockOff");
    call.perform([&](Application& app) { release(app, call, nullptr); });
}

void CorUtilLockStart(CorAddOnID id) {
    const TracedCall call("CorUtilLockStart", id);
    call.perform([&](Application& app) { app.locks().start(ownerOf(app, call, id)); });
}

void CorUtilLockFinish(CorAddOnID id) {
    const TracedCall call("CorUtilLockFinish", id);
    call.perform([&](Application& app) { release(app, call, ownerOf(app, call, id)); });
}
