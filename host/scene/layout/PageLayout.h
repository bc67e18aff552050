// Where the frames of a page lie in a picture.
#pragma once

#include "host/core/page/Page.h"
#include "host/core/ports/Picture.h"
#include "host/scene/layout/PixelRect.h"

#include <vector>

namespace corvane::scene {

struct FrameInPicture {
    const host::Frame* frame = nullptr;
    FrameArea area;
};

/// The frames in the picture, from the bottom of the stack up. The region of the current frame
/// shows that frame only, even where others cover it.
std::vector<FrameInPicture> framesInPicture(const host::Page& page,
                                            const host::PictureRequest& request);

/// The frames in a tile of the picture, with areas relative to the corner of the tile.
std::vector<FrameInPicture> framesInTile(const std::vector<FrameInPicture>& frames,
                                         const PixelRect& tile);

/// Tiles that make up the picture, none larger than the limit in either direction. Their edges lie
/// on whole pixels of the finished picture.
std::vector<PixelRect> tilesOf(const host::PictureRequest& request, int largestSize);

} // namespace corvane::scene
