// Pictures made for movies, and movies made of them.
#pragma once

#include "host/core/ports/Picture.h"
#include "host/core/ports/Ports.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace corvane::movie_test {

using Color = std::array<std::uint8_t, 3>;

host::Picture uniformPicture(int width, int height, const Color& color);

/// Picture n of a moving scene: smooth shading, patches of strong colours, and thin lines that
/// move.
host::Picture movingPicture(int width, int height, int n);

/// Picture n of a movie that cannot be compressed well.
host::Picture noisyPicture(int width, int height, int n);

host::MovieRequest movieRequest(const std::string& path, int width, int height,
                                double framesPerSecond = 30.0);

/// Moving pictures 0 to frames - 1.
std::vector<host::Picture> movingPictures(int width, int height, int frames);

/// Writes moving pictures 0 to frames - 1, and returns them.
std::vector<host::Picture> writeMovingMovie(const host::MovieRequest& request, int frames);

/// The mean colour of a rectangle.
std::array<double, 3> meanColor(const host::Picture& picture, int x, int y, int width, int height);

/// The types of a file's boxes at the top level of MP4, in their order: "ftyp moov mdat".
std::string topLevelBoxes(const std::string& path);

} // namespace corvane::movie_test
