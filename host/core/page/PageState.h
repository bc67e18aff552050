// Everything that the picture of a page depends on, as a value.
#pragma once

#include "host/core/page/FrameStyle.h"
#include "host/core/page/Placement.h"
#include "host/core/page/View3D.h"
#include "host/core/page/WorkArea.h"
#include "hostapi/CorEnums.h"

#include <memory>
#include <vector>

namespace corvane::host {

class DataSet;

/// One frame. Data are shared, never copied, and are the same where they are the same object: a
/// file that was read twice may have changed in between.
struct FrameState {
    long id = 0; ///< > 0
    Placement placement;
    PlotType_e plotType = PlotType_Cartesian3D;
    View3D view;
    FrameStyle style; ///< has a surface for each block of the data
    double solutionTime = 0.0;
    std::shared_ptr<const DataSet> data; ///< null: none

    bool isSpatial() const { return plotType == PlotType_Cartesian3D; }
    friend bool operator==(const FrameState&, const FrameState&) = default;
};

/// The whole page. Equal states give equal pictures, in any process that has the data. Taking one
/// costs microseconds; it may be kept for any time and used on any thread. Not part of it is what
/// no picture shows: a walk over the frames, numbers that are used up, files of macros and movies.
struct PageState {
    WorkArea workArea;
    std::vector<FrameState> frames; ///< from the top of the stack down; numbers differ
    long active = 0;                ///< the number of the active frame; 0 without frames

    friend bool operator==(const PageState&, const PageState&) = default;
};

/// Null without such a frame.
const FrameState* findFrame(const PageState& page, long id);

} // namespace corvane::host
