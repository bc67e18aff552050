// Makes the work area as large as the drawing area.
#include "host/gui/window/WorkAreaFitter.h"

#include "host/core/Application.h"
#include "host/gui/window/DrawingArea.h"

#include <algorithm>
#include <cmath>

namespace corvane::gui {

namespace {

constexpr double paperWidth = 8.0; // inches

bool isSame(const host::Placement& a, const host::Placement& b) {
    constexpr double tolerance = 1e-6;
    return std::abs(a.x - b.x) < tolerance && std::abs(a.y - b.y) < tolerance &&
           std::abs(a.width - b.width) < tolerance && std::abs(a.height - b.height) < tolerance;
}

} // namespace

void WorkAreaFitter::fit() {
    if (m_application.status().isActive() || m_application.exporter().isRecording()) {
        return;
    }
    const QSize size = m_area.pixels();
    if (size.isEmpty()) {
        return;
    }
    host::Page& page = m_application.page();
    const bool fills = isFilledByOneFrame();
    const double scale =
        fills ? size.width() / paperWidth : pixelsPerInch(size.width(), size.height());
    const host::WorkArea wanted{size.width(), size.height(), scale};
    if (page.workArea == wanted) {
        return;
    }
    page.workArea = wanted;
    if (fills && !page.frames().empty()) {
        page.frames().front()->placement = page.regionOf(ExportRegion_WorkArea);
    }
    m_application.drawing().mark();
}

bool WorkAreaFitter::isFilledByOneFrame() const {
    const host::Page& page = m_application.page();
    return page.frames().empty() ||
           (page.frames().size() == 1 &&
            isSame(page.frames().front()->placement, page.regionOf(ExportRegion_WorkArea)));
}

double WorkAreaFitter::pixelsPerInch(double width, double height) const {
    const host::Placement all = m_application.page().regionOf(ExportRegion_AllFrames);
    const double right = std::max(paperWidth, all.x + all.width);
    const double bottom = all.y + all.height;
    return bottom > 0.0 ? std::min(width / right, height / bottom) : width / right;
}

} // namespace corvane::gui
