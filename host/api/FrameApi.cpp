// Frames of the page.
#include "hostapi/CorFrame.h"

#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"

using namespace corvane::host;

namespace {

bool isKnown(CoordSys_e system) {
    return system == CoordSys_Paper || system == CoordSys_Screen;
}

double converted(const Operation& operation, double v, CoordSys_e from, CoordSys_e to) {
    const TracedCall call(operation, v, from, to);
    return call.answer(0.0, [&](Session& session) {
        if (!isKnown(from) || !isKnown(to)) {
            call.misuse("unknown coordinate system");
            return v;
        }
        if (from == to) {
            return v;
        }
        return to == CoordSys_Screen ? session.page().toPixels(v) : session.page().toInches(v);
    });
}

} // namespace

long CorUtilFrameGetCount(void) {
    return TracedCall("CorUtilFrameGetCount").answer(0L, [](Session& session) {
        return static_cast<long>(session.page().frames().size());
    });
}

PlotType_e CorUtilFrameGetPlotType(void) {
    return TracedCall("CorUtilFrameGetPlotType").answer(PlotType_None, [](Session& session) {
        const Frame* const frame = session.page().current();
        return frame ? frame->plotType : PlotType_None;
    });
}

long CorUtilFrameGetUniqueID(void) {
    return TracedCall("CorUtilFrameGetUniqueID").answer(0L, [](Session& session) {
        const Frame* const frame = session.page().current();
        return frame ? frame->id() : 0L;
    });
}

CorBool CorUtilFrameActivateTop(void) {
    return TracedCall("CorUtilFrameActivateTop").answer(false, [](Session& session) {
        return session.activateTopFrame();
    });
}

CorBool CorUtilFrameActivateByUniqueID(long id) {
    const TracedCall call("CorUtilFrameActivateByUniqueID", id);
    return call.answer(false, [&](Session& session) {
        return session.activateFrame(id) || call.misuse("no such frame");
    });
}

CorBool CorUtilFramePushTop(void) {
    return TracedCall("CorUtilFramePushTop").answer(false, [](Session& session) {
        if (!session.pushTopFrame()) {
            return false;
        }
        session.drawing().mark();
        return true;
    });
}

void CorUtilFrameLightweightPopStart(void) {
    TracedCall("CorUtilFrameLightweightPopStart").perform([](Session& session) {
        session.startFrameWalk();
    });
}

CorBool CorUtilFrameLightweightPopNext(void) {
    return TracedCall("CorUtilFrameLightweightPopNext").answer(false, [](Session& session) {
        return session.nextFrameOfWalk();
    });
}

void CorUtilFrameLightweightPopEnd(void) {
    TracedCall("CorUtilFrameLightweightPopEnd").perform([](Session& session) {
        session.endFrameWalk();
    });
}

void CorUtilFrameGetPosAndSize(double* x, double* y, double* w, double* h) {
    TracedCall("CorUtilFrameGetPosAndSize", x, y, w, h).perform([&](Session& session) {
        if (const Frame* const frame = session.page().current()) {
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
    TracedCall("CorUtilWorkAreaGetDimensions", width, height).perform([&](Session& session) {
        write(width, session.page().workArea.width);
        write(height, session.page().workArea.height);
    });
}
