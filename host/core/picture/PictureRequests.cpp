// From a region and a width to a picture that can be drawn.
#include "host/core/picture/PictureRequests.h"

#include "host/core/base/HostError.h"
#include "host/core/page/Page.h"
#include "host/core/ports/Ports.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace corvane::host {

namespace {

int heightFor(int width, const Placement& region) {
    const double height = static_cast<double>(width) / region.aspect();
    if (!(region.width > 0.0) || !(region.height > 0.0) || !(height < 1e6)) {
        throw HostError("There is no picture: the region to export is " +
                        std::to_string(region.width) + " by " + std::to_string(region.height) +
                        " inches. Choose another region.");
    }
    return std::max(1, static_cast<int>(std::lround(height)));
}

} // namespace

PictureRequest pictureRequest(const Page& page, const Renderer& renderer, ExportRegion_e region,
                              int width, int supersample) {
    if (page.active() == nullptr) {
        throw HostError("There is no frame to make a picture of. Load data first.");
    }
    PictureRequest picture{region, width, heightFor(width, page.regionOf(region)), supersample};
    const long largest =
        static_cast<long>(std::max(picture.width, picture.height)) * picture.supersample;
    if (largest > renderer.largestSize()) {
        throw HostError("Pictures would be drawn " + std::to_string(largest) +
                        " pixels large, and " + std::to_string(renderer.largestSize()) +
                        " are possible here. Choose a smaller width or less supersampling.");
    }
    return picture;
}

} // namespace corvane::host
