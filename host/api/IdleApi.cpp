// The idle queue.
#include "hostapi/CorIdle.h"

#include "host/api/TracedCall.h"

using namespace corvane::host;

CorBool CorUtilOnIdleQueueAddCallback(CorOnIdleCallback f, long clientData) {
    const TracedCall call("CorUtilOnIdleQueueAddCallback", f, clientData);
    return call.answer(false, [&](Session& session) {
        if (!f) {
            return call.misuse("f is NULL");
        }
        session.idle().add([f, clientData] { f(clientData); }, libraryOf(f));
        // A queue that was closed drops what it is given.
        return !session.idle().isEmpty();
    });
}
