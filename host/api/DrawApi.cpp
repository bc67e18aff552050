// Drawing.
#include "hostapi/CorDraw.h"

#include "host/api/TracedCall.h"

using namespace corvane::host;

void CorUtilDrawGraphics(CorBool doDrawing) {
    const TracedCall call("CorUtilDrawGraphics", doDrawing != FALSE);
    call.perform([&](Application& app) {
        if (!doDrawing) {
            app.drawing().suspend();
        } else if (!app.drawing().resume()) {
            call.misuse("drawing is not suspended");
        }
    });
}

CorBool CorUtilRedraw(CorBool fullRedraw) {
    const bool allFrames = fullRedraw != FALSE;
    return TracedCall("CorUtilRedraw", allFrames).answer(false, [&](Application& app) {
        return app.drawing().redraw(allFrames);
    });
}
