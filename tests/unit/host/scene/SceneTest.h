// A page that is drawn, for tests that look at its pixels.
#pragma once

#include "host/core/page/Page.h"
#include "host/scene/DataReaders.h"
#include "host/scene/SceneRenderer.h"
#include "host/scene/data/SceneStatistics.h"
#include "tests/support/TempFolder.h"

#include <vtkDataObject.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace corvane::test {

struct Rgb {
    int red = 0;
    int green = 0;
    int blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};
std::ostream& operator<<(std::ostream& stream, const Rgb& color);

Rgb pixelAt(const host::Picture& picture, int x, int y); ///< from the left upper corner
int largestDifference(const Rgb& a, const Rgb& b);       ///< over the three channels
Rgb scaled(const Rgb& color, double factor);

struct PicturePoint {
    double x = 0.0; ///< 0 = the left edge of the first pixel
    double y = 0.0; ///< 0 = the upper edge of the first row
};
/// The centre of gravity of the pixels that meet the condition; nothing when there is none.
std::optional<PicturePoint> centerOf(const host::Picture& picture,
                                     const std::function<bool(const Rgb&)>& condition);

class SceneTest : public testing::Test {
protected:
    std::shared_ptr<const host::DataSet> load(const std::string& name, vtkDataObject* object);
    std::shared_ptr<const host::DataSet> loadSeries(int steps);

    /// A frame that shows nothing but its plots, on the colour given.
    host::Frame& addPlainFrame(std::shared_ptr<const host::DataSet> data,
                               const host::Placement& placement = {0.0, 0.0, 8.0, 4.5},
                               const host::Color& background = {1.0, 1.0, 1.0});

    host::Picture draw(int width, int height, int supersample = 1,
                       ExportRegion_e region = ExportRegion_WorkArea);

    TempFolder folder;
    std::shared_ptr<scene::SceneStatistics> statistics = std::make_shared<scene::SceneStatistics>();
    scene::DataReaders reader{std::size_t{1} << 30U, statistics};
    std::vector<std::string> warnings; ///< of the renderer
    scene::SceneRenderer renderer{
        statistics, scene::defaultMemoryBudget() / 4,
        [this](const std::string& warning) { warnings.push_back(warning); }};
    host::Page page;
};

} // namespace corvane::test
