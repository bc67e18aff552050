// One frame of a page: a view of one data set.
#pragma once

#include "host/core/page/DataSet.h"
#include "host/core/page/FrameStyle.h"
#include "host/core/page/PageState.h"
#include "host/core/page/Placement.h"
#include "host/core/page/StyleTree.h"
#include "host/core/page/View3D.h"
#include "hostapi/CorEnums.h"

#include <memory>

namespace corvane::host {

/// All state that the picture of a frame depends on. It stays at its address, since its style tree
/// points into it.
class Frame {
public:
    Frame(long id, Placement placement);
    explicit Frame(const FrameState& state);
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    long id() const { return m_id; } ///< > 0, never used again

    Placement placement;
    PlotType_e plotType = PlotType_Cartesian3D;
    View3D view;
    FrameStyle style;
    double solutionTime = 0.0;

    /// Whether it shows 3D data, and so has a view.
    bool isSpatial() const { return plotType == PlotType_Cartesian3D; }

    const std::shared_ptr<const DataSet>& data() const { return m_data; }
    /// Makes style.surfaces fit the blocks of the new data and rebinds their paths; no data (null)
    /// is allowed. Chooses nothing: see chooseDefaultPlots.
    void attachData(std::shared_ptr<const DataSet> data);

    /// Everything that its picture depends on.
    FrameState state() const;
    /// Becomes what the state says, but for the number, which stays.
    void putBack(const FrameState& state);

    /// "ThreeDView", "GlobalThreeD", "ThreeDAxis", "StreamAttributes", "Contour", "Surface" n,
    /// "Slice" n, "IsoSurface" n, "Streamtraces", "Annotations".
    StyleTree& styles() { return m_styles; }
    const StyleTree& styles() const { return m_styles; }

private:
    long m_id;
    std::shared_ptr<const DataSet> m_data;
    StyleTree m_styles;
};

/// Plots that show something of data nobody described; DefaultPlots.cpp holds the rules. Sets
/// style, view and solution time (the first one) of the frame from its data; light, background and
/// orientation axis, which are a matter of taste, stay. Without data nothing changes.
void chooseDefaultPlots(Frame& frame);

} // namespace corvane::host
