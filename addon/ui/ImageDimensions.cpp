// Sizes of exported pictures in pixels.
#include "addon/ui/ImageDimensions.h"

#include "addon/base/HostLock.h"
#include "addon/engine/FramePopperAbstractFactory.h"
#include "hostapi/CorHost.h"

#include <algorithm>
#include <limits>

namespace corvane::corutiltools {

namespace {

// In paper units; y grows downwards.
struct FramePlace {
    double x = 0.0;
    double y = 0.0;
    double w = 0.0;
    double h = 0.0;
};

// Of the frame that the host's queries speak of: the active one, or the one visited.
FramePlace framePlace() {
    FramePlace place;
    CorUtilFrameGetPosAndSize(&place.x, &place.y, &place.w, &place.h);
    return place;
}

FramePlace placeOfAllFrames() {
    const auto popper = FramePopperAbstractFactory().getFramePopper(false);
    const FramePlace first = framePlace();
    double left = first.x;
    double top = first.y;
    double right = first.x + first.w;
    double bottom = first.y + first.h;
    while (popper->next()) {
        const FramePlace place = framePlace();
        left = std::min(left, place.x);
        top = std::min(top, place.y);
        right = std::max(right, place.x + place.w);
        bottom = std::max(bottom, place.y + place.h);
    }
    return {left, top, right - left, bottom - top};
}

int truncated(double pixels) {
    return static_cast<int>(std::clamp(pixels, 0.0, double{std::numeric_limits<int>::max()}));
}

void measure(const FramePlace& place, int& width, int& height) {
    width = truncated(CorUtilConvertXDimension(place.w, CoordSys_Paper, CoordSys_Screen));
    height = truncated(CorUtilConvertYDimension(place.h, CoordSys_Paper, CoordSys_Screen));
}

} // namespace

void measureRegion(ExportRegion_e region, int& width, int& height) {
    const HostLock lock;
    width = 0;
    height = 0;
    switch (region) {
    case ExportRegion_CurrentFrame:
        measure(framePlace(), width, height);
        break;
    case ExportRegion_AllFrames:
        measure(placeOfAllFrames(), width, height);
        break;
    case ExportRegion_WorkArea:
        CorUtilWorkAreaGetDimensions(&width, &height);
        break;
    }
}

void scaleToWidth(int wantedWidth, int& width, int& height) {
    if (width != 0) {
        const long scaled = static_cast<long>(height) * wantedWidth / width;
        height = static_cast<int>(std::min<long>(scaled, std::numeric_limits<int>::max()));
    }
    width = wantedWidth;
}

} // namespace corvane::corutiltools
