// From a region and a width to a picture that can be drawn.
#pragma once

#include "host/core/ports/Picture.h"

namespace corvane::host {

class Page;
class Renderer;

/// The height follows from the region's aspect. Throws HostError without a frame, for a region
/// without extent, and for pictures larger than the renderer can make.
PictureRequest pictureRequest(const Page& page, const Renderer& renderer, ExportRegion_e region,
                              int width, int supersample);

} // namespace corvane::host
