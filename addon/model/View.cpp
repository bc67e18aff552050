// One camera position of the host's 3D view.
#include "addon/model/View.h"

#include "addon/base/HostLock.h"
#include "addon/base/KeyFrameError.h"
#include "addon/base/SuspendGraphics.h"
#include "addon/model/ViewStyle.h"
#include "hostapi/CorHost.h"

#include <iomanip>
#include <locale>
#include <sstream>

namespace corvane::corutiltools {

namespace {

constexpr double degreesPerRadian = 57.29577951308232;

} // namespace

View::View(double x, double y, double z, double psi, double theta, double alpha, double width)
    : m_x(x), m_y(y), m_z(z), m_psi(psi), m_theta(theta), m_alpha(alpha), m_width(width) {}

void View::swap(const View& other) {
    *this = other;
}

void View::storeCurrentView() {
    *this = GetCurrentView();
}

void View::apply() const {
    const HostLock lock;
    const SuspendGraphics suspended;
    ViewStyle style;
    style.setAngles(m_psi, m_theta, m_alpha);
    style.setViewerPosition(m_x, m_y, m_z);
    style.setWidth(m_width);
}

std::string View::displayString() const {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(2) << "X=" << m_x << " Y=" << m_y << " Z=" << m_z
         << " Psi=" << m_psi << " Theta=" << m_theta << " Alpha=" << m_alpha
         << " Width=" << m_width;
    return text.str();
}

bool operator==(const View& left, const View& right) {
    return left.x() == right.x() && left.y() == right.y() && left.z() == right.z() &&
           left.psi() == right.psi() && left.theta() == right.theta() &&
           left.alpha() == right.alpha() && left.width() == right.width();
}

View operator/(const View& view, double divisor) {
    return View(view.x() / divisor, view.y() / divisor, view.z() / divisor, view.psi() / divisor,
                view.theta() / divisor, view.alpha() / divisor, view.width() / divisor);
}

View GetCurrentView() {
    if (CorUtilFrameGetPlotType() != PlotType_Cartesian3D) {
        throw KeyFrameError("The current frame must be in 3D Cartesian mode.");
    }
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    CorUtilThreeDViewGetViewerPos(&x, &y, &z);
    double psi = 0.0;
    double theta = 0.0;
    double alpha = 0.0;
    CorUtilThreeDViewGetViewerAngle(&psi, &theta, &alpha);
    double fieldOfView = 0.0;
    double width = 0.0;
    CorBool isInPerspective = FALSE;
    CorUtilThreeDViewGetProjection(&fieldOfView, &width, &isInPerspective);
    return View(x, y, z, psi * degreesPerRadian, theta * degreesPerRadian, alpha * degreesPerRadian,
                width);
}

} // namespace corvane::corutiltools
