// Locks.
#include "hostapi/CorLock.h"

#include "host/api/TracedCall.h"
#include "host/core/base/SecondTry.h"

using namespace corvane::host;

namespace {

/// A lock that is not counted would make its end an offence of the caller's.
void take(Session& session, CorAddOnID owner) {
    withSecondTry([&] { session.locks().start(owner); });
}

void release(Session& session, const auto& call, CorAddOnID id) {
    if (session.locks().finish(id)) {
        session.drawing().drawIfDue();
    } else {
        call.misuse("no such lock is held");
    }
}

/// Locks under an id that was never given away count as those without an id.
CorAddOnID ownerOf(Session& session, const auto& call, CorAddOnID id) {
    if (id && !session.addOns().isKnown(id)) {
        call.misuse("unknown add-on");
        return nullptr;
    }
    return id;
}

} // namespace

void CorUtilLockOn(void) {
    TracedCall("CorUtilLockOn").perform([](Session& session) { take(session, nullptr); });
}

void CorUtilLockOff(void) {
    const TracedCall call("CorUtilLockOff");
    call.perform([&](Session& session) { release(session, call, nullptr); });
}

void CorUtilLockStart(CorAddOnID id) {
    const TracedCall call("CorUtilLockStart", id);
    call.perform([&](Session& session) { take(session, ownerOf(session, call, id)); });
}

void CorUtilLockFinish(CorAddOnID id) {
    const TracedCall call("CorUtilLockFinish", id);
    call.perform([&](Session& session) { release(session, call, ownerOf(session, call, id)); });
}
