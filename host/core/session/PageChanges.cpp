#include "host/core/session/PageChanges.h"

#include "host/core/page/PageState.h"

#include <algorithm>

namespace corvane::host {

namespace {

bool hasFrameOutside(const PageState& page, const PageState& other) {
    return std::any_of(page.frames.begin(), page.frames.end(), [&other](const FrameState& frame) {
        return findFrame(other, frame.id) == nullptr;
    });
}

/// Whether a frame that is in both differs so; one that is new differs in all that it has.
template <typename Differs>
bool anyFrame(const PageState& before, const PageState& after, const Differs& differs) {
    static const FrameState nothing;
    return std::any_of(after.frames.begin(), after.frames.end(), [&](const FrameState& frame) {
        const FrameState* const was = findFrame(before, frame.id);
        return was != nullptr ? differs(*was, frame) : frame.data && differs(nothing, frame);
    });
}

} // namespace

std::vector<StateChange_e> changesBetween(const PageState& before, const PageState& after) {
    std::vector<StateChange_e> changes;
    const auto add = [&changes](bool isSo, StateChange_e change) {
        if (isSo) {
            changes.push_back(change);
        }
    };
    const auto any = [&](const auto& differs) { return anyFrame(before, after, differs); };
    add(hasFrameOutside(before, after), StateChange_FrameDeleted);
    add(hasFrameOutside(after, before), StateChange_FrameCreated);
    add(before.active != after.active && after.active != 0, StateChange_FrameActivated);
    add(any([](const auto& a, const auto& b) { return a.data != b.data && !b.data; }),
        StateChange_DataSetRemoved);
    add(any([](const auto& a, const auto& b) { return a.data != b.data && b.data; }),
        StateChange_DataSetAttached);
    add(any([](const auto& a, const auto& b) { return a.plotType != b.plotType; }),
        StateChange_PlotTypeChanged);
    add(any([](const auto& a, const auto& b) { return a.solutionTime != b.solutionTime; }),
        StateChange_SolutionTimeChanged);
    add(any([](const auto& a, const auto& b) { return a.view != b.view; }),
        StateChange_ViewChanged);
    add(any([](const auto& a, const auto& b) {
            return a.style != b.style || a.placement != b.placement;
        }),
        StateChange_StyleChanged);
    return changes;
}

} // namespace corvane::host
