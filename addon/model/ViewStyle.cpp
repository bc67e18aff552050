// The 3D view of the host's active frame, as style values.
#include "addon/model/ViewStyle.h"

namespace corvane::corutiltools {

ViewStyle::ViewStyle() : m_style("ThreeDView") {}

void ViewStyle::setAngles(double psi, double theta, double alpha) {
    m_style.set(psi, "PSIAngle");
    m_style.set(theta, "ThetaAngle");
    m_style.set(alpha, "AlphaAngle");
}

void ViewStyle::setViewerPosition(double x, double y, double z) {
    m_style.set(x, "ViewerPosition", "X");
    m_style.set(y, "ViewerPosition", "Y");
    m_style.set(z, "ViewerPosition", "Z");
}

void ViewStyle::setWidth(double width) {
    bool isInPerspective = false;
    m_style.getBoolean(isInPerspective, "DrawInPerspective");
    m_style.setBoolean(false, "DrawInPerspective");
    m_style.set(width, "ViewWidth");
    m_style.setBoolean(isInPerspective, "DrawInPerspective");
}

} // namespace corvane::corutiltools
