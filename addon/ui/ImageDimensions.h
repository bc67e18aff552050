// Sizes of exported pictures in pixels.
#pragma once

#include "hostapi/CorEnums.h"

namespace corvane::corutiltools {

// The size that the region has on screen; 0 by 0 where there is nothing to measure.
void measureRegion(ExportRegion_e region, int& width, int& height);

// Keeps the ratio of the sides, rounding the height down. A width of 0 leaves the height alone.
void scaleToWidth(int wantedWidth, int& width, int& height);

} // namespace corvane::corutiltools
