// A page that is drawn, for tests that look at its pixels.
#include "tests/unit/host/scene/SceneTest.h"

#include "tests/unit/host/scene/MeshFiles.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace corvane::test {

std::ostream& operator<<(std::ostream& stream, const Rgb& color) {
    return stream << "(" << color.red << " " << color.green << " " << color.blue << ")";
}

Rgb pixelAt(const host::Picture& picture, int x, int y) {
    const std::uint8_t* const pixel = picture.row(y) + 4 * static_cast<std::ptrdiff_t>(x);
    return {pixel[0], pixel[1], pixel[2]};
}

int largestDifference(const Rgb& a, const Rgb& b) {
    return std::max(
        {std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

Rgb scaled(const Rgb& color, double factor) {
    const auto scale = [factor](int value) {
        return static_cast<int>(std::lround(factor * value));
    };
    return {scale(color.red), scale(color.green), scale(color.blue)};
}

std::optional<PicturePoint> centerOf(const host::Picture& picture,
                                     const std::function<bool(const Rgb&)>& condition) {
    PicturePoint sum;
    int count = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (condition(pixelAt(picture, x, y))) {
                sum.x += x + 0.5;
                sum.y += y + 0.5;
                ++count;
            }
        }
    }
    if (count == 0) {
        return std::nullopt;
    }
    return PicturePoint{sum.x / count, sum.y / count};
}

std::shared_ptr<const host::DataSet> SceneTest::load(const std::string& name,
                                                     vtkDataObject* object) {
    return reader.read({writeMesh(folder, name, object)});
}

std::shared_ptr<const host::DataSet> SceneTest::loadSeries(int steps) {
    return reader.read({writeSeries(folder, steps)});
}

host::Frame& SceneTest::addPlainFrame(std::shared_ptr<const host::DataSet> data,
                                      const host::Placement& placement,
                                      const host::Color& background) {
    host::Frame& frame = page.createFrame(placement);
    frame.attachData(std::move(data));
    frame.style.annotations.showAxis = false;
    frame.style.annotations.showOutline = false;
    frame.style.annotations.background = background;
    frame.style.contour.showLegend = false;
    return frame;
}

host::Picture SceneTest::draw(int width, int height, int supersample, ExportRegion_e region) {
    return renderer.draw(page, {region, width, height, supersample});
}

} // namespace corvane::test
