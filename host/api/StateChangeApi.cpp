// Notification of state changes.
#include "hostapi/CorStateChange.h"

#include "host/api/ArgumentList.h"
#include "host/api/TracedCall.h"

using namespace corvane::host;

namespace {

constexpr int callbackTakesCodeAlone = 1;

void checkMode(const auto& call, int mode) {
    if (mode != StateChangeMode_Synchronous) {
        call.misuse("unknown mode; changes are told at once");
    }
}

} // namespace

CorBool CorUtilStateChangeAddCallbackX(CorArgList args) {
    const TracedCall call("CorUtilStateChangeAddCallbackX", args);
    return call.answer(false, [&](Session& session) {
        const CorArgList_s* const list = known(args);
        const auto* callback = list ? list->find<CorGenericFunc>("CallbackFunction") : nullptr;
        if (!callback || !*callback) {
            return call.misuse("no CallbackFunction");
        }
        const int* const api = list->find<int>("StateChangeCallbackAPI");
        if (api && *api != callbackTakesCodeAlone) {
            return call.misuse("unknown StateChangeCallbackAPI");
        }
        if (const int* const mode = list->find<int>("StateChangeMode")) {
            checkMode(call, *mode);
        }
        session.stateChanges().addCallback(reinterpret_cast<CorStateChangeCallback>(*callback),
                                           libraryOf(*callback));
        return true;
    });
}

CorBool CorUtilStateChangeAddListener(StateChangeMode_e mode, CorStateChangeListener f,
                                      void* clientData) {
    const TracedCall call("CorUtilStateChangeAddListener", mode, f, clientData);
    return call.answer(false, [&](Session& session) {
        if (!f) {
            return call.misuse("f is NULL");
        }
        checkMode(call, mode);
        session.stateChanges().addListener(f, clientData, libraryOf(f));
        return true;
    });
}

CorBool CorUtilStateChangeRemoveListener(CorStateChangeListener f, void* clientData) {
    const TracedCall call("CorUtilStateChangeRemoveListener", f, clientData);
    return call.answer(false, [&](Session& session) {
        return session.stateChanges().removeListener(f, clientData);
    });
}
