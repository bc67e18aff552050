// Pictures made for movies, and movies made of them.
#include "tests/unit/host/movie/TestMovie.h"

#include "host/movie/LibavMovieWriters.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <random>
#include <stdexcept>

namespace corvane::movie_test {

namespace {

std::uint8_t* pixel(host::Picture& picture, int x, int y) {
    return picture.rgba.data() + 4 * (std::ptrdiff_t{y} * picture.width + x);
}

void paint(host::Picture& picture, int x, int y, const Color& color) {
    if (x < 0 || y < 0 || x >= picture.width || y >= picture.height) {
        return;
    }
    std::copy(color.begin(), color.end(), pixel(picture, x, y));
}

void paintPatch(host::Picture& picture, int left, int top, int size, const Color& color) {
    for (int y = top; y < top + size; ++y) {
        for (int x = left; x < left + size; ++x) {
            paint(picture, x, y, color);
        }
    }
}

/// One period of a wave as levels of a colour, for places 0 to size - 1 of a picture.
std::vector<std::uint8_t> wave(int size, double strength, double phase) {
    std::vector<std::uint8_t> levels;
    for (int i = 0; i < size; ++i) {
        const double angle = 6.28 * i / size + phase;
        levels.push_back(
            static_cast<std::uint8_t>(std::lround(127.5 + 100.0 * strength * std::sin(angle))));
    }
    return levels;
}

/// Shading like that of a lit surface, moving to the left. It is gentle where pictures are small,
/// since movies keep one colour for several pixels.
void paintShading(host::Picture& picture, int n) {
    const double strength = std::min(1.0, std::min(picture.width, picture.height) / 128.0);
    const auto red = wave(picture.width, strength, 24.0 * n / picture.width);
    const auto green = wave(picture.height, strength, 1.0);
    const auto blue = wave(picture.width + picture.height, strength, 0.1 * n);
    auto* at = picture.rgba.data();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x, at += 4) {
            at[0] = red[static_cast<std::size_t>(x)];
            at[1] = green[static_cast<std::size_t>(y)];
            at[2] = blue[static_cast<std::size_t>(x) + static_cast<std::size_t>(y)];
        }
    }
}

/// Lines one pixel wide: upright, level and oblique ones.
void paintLines(host::Picture& picture, int n) {
    const Color white{255, 255, 255};
    const Color black{0, 0, 0};
    for (int y = 0; y < picture.height; ++y) {
        paint(picture, (picture.width / 3 + 2 * n) % picture.width, y, white);
        paint(picture, y + n, y, black);
    }
    for (int x = 0; x < picture.width; ++x) {
        paint(picture, x, (picture.height / 2 + n) % picture.height, white);
    }
}

} // namespace

host::Picture uniformPicture(int width, int height, const Color& color) {
    host::Picture picture;
    picture.width = width;
    picture.height = height;
    picture.rgba.assign(4U * static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                        255);
    for (std::size_t i = 0; i < picture.rgba.size(); i += 4) {
        std::copy(color.begin(), color.end(), picture.rgba.data() + i);
    }
    return picture;
}

host::Picture movingPicture(int width, int height, int n) {
    host::Picture picture = uniformPicture(width, height, {});
    paintShading(picture, n);
    if (std::min(width, height) < 128) {
        return picture; // a line would be a large part of it
    }
    const int size = std::min(width, height) / 8;
    paintPatch(picture, size + 2 * n, size, size, {255, 0, 0});
    paintPatch(picture, 3 * size, size + 2 * n, size, {0, 255, 0});
    paintPatch(picture, 5 * size, 5 * size, size, {0, 0, 255});
    paintLines(picture, n);
    return picture;
}

host::Picture noisyPicture(int width, int height, int n) {
    host::Picture picture = uniformPicture(width, height, {});
    std::minstd_rand random(static_cast<unsigned>(n) + 1U);
    for (std::size_t i = 0; i < picture.rgba.size(); ++i) {
        if (i % 4 != 3) {
            picture.rgba[i] = static_cast<std::uint8_t>(random() >> 8U);
        }
    }
    return picture;
}

host::MovieRequest movieRequest(const std::string& path, int width, int height,
                                double framesPerSecond) {
    host::MovieRequest request;
    request.path = path;
    request.width = width;
    request.height = height;
    request.framesPerSecond = framesPerSecond;
    return request;
}

std::vector<host::Picture> movingPictures(int width, int height, int frames) {
    std::vector<host::Picture> pictures;
    for (int n = 0; n < frames; ++n) {
        pictures.push_back(movingPicture(width, height, n));
    }
    return pictures;
}

std::vector<host::Picture> writeMovingMovie(const host::MovieRequest& request, int frames) {
    movie::LibavMovieWriters writers;
    const auto writer = writers.open(request);
    auto pictures = movingPictures(request.width, request.height, frames);
    for (const host::Picture& picture : pictures) {
        writer->add(picture);
    }
    writer->finish();
    return pictures;
}

std::array<double, 3> meanColor(const host::Picture& picture, int x, int y, int width, int height) {
    std::array<double, 3> sum{};
    for (int row = y; row < y + height; ++row) {
        for (int column = x; column < x + width; ++column) {
            for (std::size_t i = 0; i < 3; ++i) {
                sum[i] += picture.row(row)[4U * static_cast<std::size_t>(column) + i];
            }
        }
    }
    for (double& value : sum) {
        value /= double{1} * width * height;
    }
    return sum;
}

std::string topLevelBoxes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string types;
    std::array<unsigned char, 8> head{};
    while (file.read(reinterpret_cast<char*>(head.data()), head.size())) {
        std::uint64_t size = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            size = size * 256 + head[i];
        }
        if (size < head.size()) {
            throw std::runtime_error("a box of this size is not known here");
        }
        types += types.empty() ? "" : " ";
        types.append(head.begin() + 4, head.end());
        file.seekg(static_cast<std::streamoff>(size - head.size()), std::ios::cur);
    }
    return types;
}

} // namespace corvane::movie_test
