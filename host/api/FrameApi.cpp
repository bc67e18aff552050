// Frames of the page.
#include "hostapi/CorFrame.h"

#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"

using namespace corvane::host;

namespace {

/// Changes which frame is active, and tells about it when it is another one than before.
bool changeActive(Application& app, bool (Page::*change)()) {
    const Frame* const before = app.page().active();
    if (!(app.page().*change)()) {
        return false;
    }
    if (app.page().active() != before) {
        app.pageChanged(StateChange_FrameActivated);
    }
    return true;
}

bool isKnown(CoordSys_e system) {
    return system == CoordSys_Paper || system == CoordSys_Screen;
}

double converted(const Operation& operation, double v, CoordSys_e from, CoordSys_e to) {
    const TracedCall call(operation, v, from, to);
    return call.answer(0.0, [&](Application& app) {
        if (!isKnown(from) || !isKnown(to)) {
            call.misuse("unknown coordinate system");
            return v;
        }
        if (from == to) {
            return v;
        }
        return to == CoordSys_Screen ? app.page().toPixels(v) : app.page().toInches(v);
    });
}

} // namespace

long CorUtilFrameGetCount(void) {
    return TracedCall("CorUtilFrameGetCount").answer(0L, [](Application& app) {
        return static_cast<long>(app.page().frames().size());
    });
}

PlotType_e CorUtilFrameGetPlotType(void) {
    return TracedCall("CorUtilFrameGetPlotType").answer(PlotType_None, [](Application& app) {
        const Frame* const frame = app.page().current();
        return frame ? frame->plotType : PlotType_None;
    });
}

long CorUtilFrameGetUniqueID(void) {
    return TracedCall("CorUtilFrameGetUniqueID").answer(0L, [](Application& app) {
        const Frame* const frame = app.page().current();
        return frame ? frame->id() : 0L;
    });
}

CorBool CorUtilFrameActivateTop(void) {
    return TracedCall("CorUtilFrameActivateTop").answer(false, [](Application& app) {
        return changeActive(app, &Page::activateTop);
    });
}

CorBool CorUtilFrameActivateByUniqueID(long id) {
    const TracedCall call("CorUtilFrameActivateByUniqueID", id);
    return call.answer(false, [&](Application& app) {
        return app.activateFrame(id) || call.misuse("no such frame");
    });
}

CorBool CorUtilFramePushTop(void) {
    return TracedCall("CorUtilFramePushTop").answer(false, [](Application& app) {
        if (!changeActive(app, &Page::pushTop)) {
            return false;
        }
        app.drawing().mark();
        return true;
    });
}

void CorUtilFrameLightweightPopStart(void) {
    TracedCall("CorUtilFrameLightweightPopStart").perform([](Application& app) {
        app.page().startWalk();
    });
}

CorBool CorUtilFrameLightweightPopNext(void) {
    return TracedCall("CorUtilFrameLightweightPopNext").answer(false, [](Application& app) {
        return app.page().nextOfWalk();
    });
}

void CorUtilFrameLightweightPopEnd(void) {
    TracedCall("CorUtilFrameLightweightPopEnd").perform([](Application& app) {
        app.page().endWalk();
    });
}

void CorUtilFrameGetPosAndSize(double* x, double* y, double* w, double* h) {
    TracedCall("CorUtilFrameGetPosAndSize", x, y, w, h).perform([&](Application& app) {
        if (const Frame* const frame = app.page().current()) {
            write(x, frame->placement.x);
            write(y, frame->placement.y);
            write(w, frame->placement.width);
            write(h, frame->placement.height);
        }
    });
}

double CorUtilConvertXDimension(double v, CoordSys_e from, CoordSys_e to) {
    return converted("CorUtilConvertXDimension", v, from, to);
}

double CorUtilConvertYDimension(double v, CoordSys_e from, CoordSys_e to) {
    return converted("CorUtilConvertYDimension", v, from, to);
}

void CorUtilWorkAreaGetDimensions(int* width, int* height) {
    TracedCall("CorUtilWorkAreaGetDimensions", width, height).perform([&](Application& app) {
        write(width, app.page().workArea.width);
        write(height, app.page().workArea.height);
    });
}
