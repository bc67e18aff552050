#include "host/scene/layout/PageLayout.h"

#include <cmath>

namespace corvane::scene {

using host::Placement;

namespace {

/// Edges are rounded to pixels of the finished picture, so that supersampling moves nothing.
PixelRect pixelsOf(const Placement& frame, const Placement& region,
                   const host::PictureRequest& request) {
    const double perInchX = request.width / region.width;
    const double perInchY = request.height / region.height;
    const auto round = [](double value) { return static_cast<int>(std::lround(value)); };
    const int left = round((frame.x - region.x) * perInchX);
    const int right = round((frame.x + frame.width - region.x) * perInchX);
    const int top = round((frame.y - region.y) * perInchY);
    const int bottom = round((frame.y + frame.height - region.y) * perInchY);
    const int n = request.supersample;
    return {left * n, (request.height - bottom) * n, (right - left) * n, (bottom - top) * n};
}

} // namespace

std::vector<FrameInPicture> framesInPicture(const host::Page& page,
                                            const host::PictureRequest& request) {
    const Placement region = page.regionOf(request.region);
    const PixelRect picture{0, 0, request.width * request.supersample,
                            request.height * request.supersample};
    std::vector<FrameInPicture> shown;
    std::vector<const host::Frame*> bottomUp = page.frames();
    std::reverse(bottomUp.begin(), bottomUp.end());
    for (const host::Frame* const frame : bottomUp) {
        if (request.region == ExportRegion_CurrentFrame && frame != page.active()) {
            continue;
        }
        const PixelRect full = pixelsOf(frame->placement, region, request);
        const PixelRect visible = intersection(full, picture);
        if (!visible.isEmpty()) {
            shown.push_back({frame, {full, visible}});
        }
    }
    return shown;
}

std::vector<FrameInPicture> framesInTile(const std::vector<FrameInPicture>& frames,
                                         const PixelRect& tile) {
    std::vector<FrameInPicture> shown;
    for (FrameInPicture frame : frames) {
        PixelRect& full = frame.area.full;
        full.x -= tile.x;
        full.y -= tile.y;
        frame.area.visible = intersection(full, {0, 0, tile.width, tile.height});
        if (!frame.area.visible.isEmpty()) {
            shown.push_back(frame);
        }
    }
    return shown;
}

std::vector<PixelRect> tilesOf(const host::PictureRequest& request, int largestSize) {
    const int n = request.supersample;
    const int side = largestSize / n * n;
    const PixelRect picture{0, 0, request.width * n, request.height * n};
    std::vector<PixelRect> tiles;
    for (int y = 0; y < picture.height; y += side) {
        for (int x = 0; x < picture.width; x += side) {
            tiles.push_back(intersection({x, y, side, side}, picture));
        }
    }
    return tiles;
}

} // namespace corvane::scene
