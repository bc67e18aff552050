// The 3D view of the host's active frame, as style values.
#pragma once

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

// Writes to the 3D view. Refused writes are ignored; nothing is locked or suspended here.
class ViewStyle {
public:
    ViewStyle();

    // In degrees, unlike the angles that the host's query returns.
    void setAngles(double psi, double theta, double alpha);

    void setViewerPosition(double x, double y, double z);

    // Switches perspective off around the write, since the host takes a width only without it. The
    // flag is off afterwards if it could not be read.
    void setWidth(double width);

private:
    toolbox::StyleValue m_style;
};

} // namespace corvane::corutiltools
