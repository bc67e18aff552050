// One step of the host's camera from a view towards another.
#include "addon/engine/ViewStep.h"

#include "addon/base/HostLock.h"
#include "addon/base/SuspendGraphics.h"
#include "addon/model/Utilities.h"
#include "addon/model/ViewStyle.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

namespace {

double shortWay(double from, double to) {
    double difference = to - from;
    ClampAngleTo180(difference);
    return difference;
}

void rotate(RotateAxis_e axis, double degrees) {
    CorUtilViewRotate3D(axis, degrees, 0.0, 0.0, 0.0, RotateOrigin_Default);
}

// Always in this order: a host may turn in a way that does not commute.
void rotateByAngles(double psi, double theta, double alpha) {
    rotate(RotateAxis_Alpha, alpha);
    rotate(RotateAxis_Psi, psi);
    rotate(RotateAxis_Theta, theta);
}

// What is left to do from one view to another, as a view of differences. A trial turn over the
// whole way shows where the turn alone carries the viewer; only what remains from there is moved in
// a straight line.
View wholeWay(const View& from, const View& target) {
    from.apply();
    const double psi = shortWay(from.psi(), target.psi());
    const double theta = shortWay(from.theta(), target.theta());
    const double alpha = shortWay(from.alpha(), target.alpha());
    const HostLock lock;
    rotateByAngles(psi, theta, alpha);
    const View rotated = GetCurrentView();
    return View(target.x() - rotated.x(), target.y() - rotated.y(), target.z() - rotated.z(), psi,
                theta, alpha, target.width() - rotated.width());
}

void moveHost(const View& from, const View& step) {
    // Undoes the trial turn.
    from.apply();
    const HostLock lock;
    const SuspendGraphics suspended;
    rotateByAngles(step.psi(), step.theta(), step.alpha());
    const View rotated = GetCurrentView();
    ViewStyle style;
    style.setViewerPosition(rotated.x() + step.x(), rotated.y() + step.y(), rotated.z() + step.z());
    style.setWidth(rotated.width() + step.width());
}

} // namespace

View StepTowards(const View& from, const View& target, double stepsToGo) {
    moveHost(from, wholeWay(from, target) / stepsToGo);
    return GetCurrentView();
}

} // namespace corvane::corutiltools
