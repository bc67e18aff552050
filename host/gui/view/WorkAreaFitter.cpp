#include "host/gui/view/WorkAreaFitter.h"

#include "host/core/Host.h"
#include "host/gui/commands/Commands.h"
#include "host/gui/view/DrawingArea.h"

#include <algorithm>
#include <cmath>

namespace corvane::gui {

namespace {

/// Ignores rounding errors, which are no reason to redraw.
bool isSame(const host::WorkArea& a, const host::WorkArea& b) {
    constexpr double tolerance = 1e-9;
    return a.width == b.width && a.height == b.height &&
           std::abs(a.pixelsPerInch - b.pixelsPerInch) <= tolerance * b.pixelsPerInch;
}

} // namespace

void WorkAreaFitter::fit() {
    if (m_commands.isBusy()) {
        return;
    }
    const QSize size = m_area.pixels();
    if (size.isEmpty()) {
        return;
    }
    const host::Page& page = m_commands.session().page();
    const double scale = page.isFilledByOneFrame() ? size.width() / host::paperWidthInches
                                                   : pixelsPerInch(size.width(), size.height());
    const host::WorkArea wanted{size.width(), size.height(), scale};
    if (!isSame(page.workArea, wanted)) {
        m_commands.session().resizeWorkArea(wanted);
    }
}

double WorkAreaFitter::pixelsPerInch(double width, double height) const {
    const host::Placement all = m_commands.session().page().regionOf(ExportRegion_AllFrames);
    const double right = std::max(host::paperWidthInches, all.x + all.width);
    const double bottom = all.y + all.height;
    return bottom > 0.0 ? std::min(width / right, height / bottom) : width / right;
}

} // namespace corvane::gui
