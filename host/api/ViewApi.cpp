// The 3D view.
#include "hostapi/CorView.h"

#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"

#include <numbers>

using namespace corvane::host;

namespace {

/// Null when the frame in question is not a 3D frame.
const View3D* currentView(Session& session) {
    const Frame* const frame = session.page().currentSpatial();
    return frame ? &frame->view : nullptr;
}

double radians(double degrees) {
    return degrees * (std::numbers::pi / 180.0);
}

bool isKnown(RotateAxis_e axis) {
    return axis == RotateAxis_Psi || axis == RotateAxis_Theta || axis == RotateAxis_Alpha;
}

} // namespace

void CorUtilThreeDViewGetViewerPos(double* x, double* y, double* z) {
    TracedCall("CorUtilThreeDViewGetViewerPos", x, y, z).perform([&](Session& session) {
        if (const View3D* const view = currentView(session)) {
            write(x, view->position.x);
            write(y, view->position.y);
            write(z, view->position.z);
        }
    });
}

void CorUtilThreeDViewGetViewerAngle(double* psi, double* theta, double* alpha) {
    const TracedCall call("CorUtilThreeDViewGetViewerAngle", psi, theta, alpha);
    call.perform([&](Session& session) {
        if (const View3D* const view = currentView(session)) {
            write(psi, radians(view->psi));
            write(theta, radians(view->theta));
            write(alpha, radians(view->alpha));
        }
    });
}

void CorUtilThreeDViewGetProjection(double* fieldOfView, double* viewWidth,
                                    CorBool* isInPerspective) {
    const TracedCall call("CorUtilThreeDViewGetProjection", fieldOfView, viewWidth,
                          isInPerspective);
    call.perform([&](Session& session) {
        if (const View3D* const view = currentView(session)) {
            write(fieldOfView, view->fieldOfView);
            write(viewWidth, view->width);
            write(isInPerspective, view->perspective ? TRUE : FALSE);
        }
    });
}

CorBool CorUtilViewRotate3D(RotateAxis_e axis, double degrees, double vx, double vy, double vz,
                            RotateOrigin_e origin) {
    const TracedCall call("CorUtilViewRotate3D", axis, degrees, vx, vy, vz, origin);
    return call.answer(false, [&](Session& session) {
        return isKnown(axis) ? session.rotateView(axis, degrees) : call.misuse("unknown axis");
    });
}
