// The paths under which the values of a frame are reached.
#pragma once

#include "host/core/page/FrameStyle.h"
#include "host/core/page/StyleTree.h"
#include "host/core/page/View3D.h"

namespace corvane::host {

/// "ThreeDView" …: writes have the effect View.
void bindViewStyles(StyleTree& tree, View3D& view);

/// Answers whether a text names something of the data.
using NameCheck = std::function<bool(const std::string&)>;

/// What values are asked of the data before they are written.
struct DataChecks {
    NameCheck isQuantity;
    NameCheck isVector;
    std::function<bool()> mayHaveVectors; ///< true while there are no data
};

/// All paths outside of the view but "Surface" n.
void bindPlotStyles(StyleTree& tree, FrameStyle& style, const DataChecks& data);

/// "Surface" n for each of the surfaces, n from 1 on; replaces the ones bound before. To be called
/// again whenever the vector was resized.
void bindSurfaceStyles(StyleTree& tree, std::vector<SurfaceStyle>& surfaces);

} // namespace corvane::host
