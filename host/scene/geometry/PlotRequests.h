// What is to be drawn of the data of a frame.
#pragma once

#include "host/core/page/Frame.h"
#include "host/scene/data/SceneDataSet.h"
#include "host/scene/geometry/Geometry.h"
#include "host/scene/geometry/StreamTraces.h"
#include "host/scene/style/PlotAppearance.h"

#include <optional>
#include <vector>

namespace corvane::scene {

/// One plot of one block.
struct PlotRequest {
    int zone = 0;   ///< index into the zones of the data
    int number = 0; ///< of the slice or isosurface, from 0
    Recipe recipe;
    PlotAppearance appearance;
};

/// The streamtraces of a frame.
struct StreamRequest {
    StreamRecipe recipe;
    std::vector<int> zones;  ///< of the meshes of the recipe
    double tubeRadius = 0.0; ///< data coordinates; 0: lines
    double markerSize = 0.0; ///< radius that tubes have, or would have

    friend bool operator==(const StreamRequest&, const StreamRequest&) = default;
};

/// Everything that is shown at one solution time.
struct PictureContent {
    std::vector<int> zones;
    std::vector<PlotRequest> plots;
    std::optional<StreamRequest> streams;
};

PictureContent contentAt(const host::FrameStyle& style, const SceneDataSet& data,
                         double solutionTime);

} // namespace corvane::scene
