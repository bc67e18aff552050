// Drawing.
#include "hostapi/CorDraw.h"

#include "host/api/TracedCall.h"

using namespace corvane::host;

void CorUtilDrawGraphics(CorBool doDrawing) {
    const TracedCall call("CorUtilDrawGraphics", doDrawing != FALSE);
    call.perform([&](Session& session) {
        if (!doDrawing) {
            session.drawing().suspend();
        } else if (!session.drawing().resume()) {
            call.misuse("drawing is not suspended");
        }
    });
}

CorBool CorUtilRedraw(CorBool fullRedraw) {
    const bool allFrames = fullRedraw != FALSE;
    return TracedCall("CorUtilRedraw", allFrames).answer(false, [&](Session& session) {
        return session.drawing().redraw(allFrames);
    });
}
