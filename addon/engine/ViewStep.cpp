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
View wholeWay(View const& from, View const& target) {
    from.apply();
    double const psi = shortWay(from.psi(), target.psi());
    double const theta = shortWay(from.theta(), target.theta());
    double const alpha = shortWay(from.alpha(), target.alpha());
    HostLock const lock;
    rotateByAngles(psi, theta, alpha);
    View const rotated = GetCurrentView();
    return View(target.x() - rotated.x(), target.y() - rotated.y(), target.z() - rotated.z(), psi,
                theta, alpha, target.width() - rotated.width());
}

void moveHost(View const& from, View const& step) {
    // Undoes the trial turn.
    from.apply();
    HostLock const lock;
    SuspendGraphics const suspended;
    rotateByAngles(step.psi(), step.theta(), step.alpha());
    View const rotated = GetCurrentView();
    ViewStyle style;
    style.setViewerPosition(rotated.x() + step.x(), rotated.y() + step.y(), rotated.z() + step.z());
    style.setWidth(rotated.width() + step.width());
}

} // namespace

View StepTowards(View const& from, View const& target, double stepsToGo) {
    moveHost(from, wholeWay(from, target) / stepsToGo);
    return GetCurrentView();
}

} // namespace corvane::corutiltools
