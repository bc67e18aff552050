// Frames and the data they show.
#include "host/core/page/Frame.h"

#include "host/core/page/StyleBindings.h"

#include <algorithm>
#include <utility>

namespace corvane::host {

Frame::Frame(long id, Placement where) : placement(where), m_id(id) {
    bindViewStyles(m_styles, view);
    const auto isQuantity = [this](const std::string& name) {
        return name.empty() || !m_data || m_data->hasQuantity(name);
    };
    const auto isVector = [this](const std::string& name) {
        return name.empty() || !m_data || m_data->findVector(name) != nullptr;
    };
    const auto mayHaveVectors = [this] {
        return !m_data || std::any_of(m_data->variables.begin(), m_data->variables.end(),
                                      [](const Variable& v) { return v.components == 3; });
    };
    bindPlotStyles(m_styles, style, {isQuantity, isVector, mayHaveVectors});
}

Frame::Frame(const FrameState& state) : Frame(state.id, state.placement) {
    putBack(state);
}

FrameState Frame::state() const {
    return {m_id, placement, plotType, view, style, solutionTime, m_data};
}

void Frame::putBack(const FrameState& state) {
    placement = state.placement;
    plotType = state.plotType;
    view = state.view;
    solutionTime = state.solutionTime;
    const bool isBound = style.surfaces.size() == state.style.surfaces.size();
    m_data = state.data;
    style = state.style;
    if (!isBound) {
        bindSurfaceStyles(m_styles, style.surfaces);
    }
}

void Frame::attachData(std::shared_ptr<const DataSet> data) {
    m_data = std::move(data);
    style.surfaces.assign(m_data ? m_data->blocks.size() : 0, SurfaceStyle{});
    bindSurfaceStyles(m_styles, style.surfaces);
}

} // namespace corvane::host
