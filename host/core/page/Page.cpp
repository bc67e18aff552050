// The stack of frames, and the scale of the paper.
#include "host/core/page/Page.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane::host {

namespace {

/// A whole number where only rounding errors keep it from being one.
double snapped(double value) {
    const double whole = std::round(value);
    return std::abs(value - whole) <= 1e-9 * std::abs(whole) ? whole : value;
}

Placement united(const Placement& a, const Placement& b) {
    const double left = std::min(a.x, b.x);
    const double top = std::min(a.y, b.y);
    const double right = std::max(a.x + a.width, b.x + b.width);
    const double bottom = std::max(a.y + a.height, b.y + b.height);
    return {left, top, right - left, bottom - top};
}

bool isSame(const Placement& a, const Placement& b) {
    constexpr double tolerance = 1e-6; // inches
    return std::abs(a.x - b.x) < tolerance && std::abs(a.y - b.y) < tolerance &&
           std::abs(a.width - b.width) < tolerance && std::abs(a.height - b.height) < tolerance;
}

template <typename Frames>
auto findById(Frames& frames, long id) {
    return std::find_if(frames.begin(), frames.end(),
                        [id](const auto& frame) { return frame->id() == id; });
}

} // namespace

PageState Page::state() const {
    PageState state{workArea, {}, m_active != nullptr ? m_active->id() : 0};
    state.frames.reserve(m_frames.size());
    for (const auto& frame : m_frames) {
        state.frames.push_back(frame->state());
    }
    return state;
}

void Page::putBack(const PageState& state) {
    endWalk();
    workArea = state.workArea;
    std::vector<std::unique_ptr<Frame>> stack;
    for (const FrameState& wanted : state.frames) {
        const auto found = findById(m_frames, wanted.id);
        if (found == m_frames.end()) {
            stack.push_back(std::make_unique<Frame>(wanted));
            m_lastId = std::max(m_lastId, wanted.id);
        } else {
            stack.push_back(std::move(*found));
            m_frames.erase(found);
            stack.back()->putBack(wanted);
        }
    }
    m_frames = std::move(stack);
    if (!activate(state.active)) {
        activateTop();
    }
}

void Page::resizeWorkArea(const WorkArea& area) {
    const bool isFilled = isFilledByOneFrame();
    workArea = area;
    if (isFilled && !m_frames.empty()) {
        m_frames.front()->placement = regionOf(ExportRegion_WorkArea);
    }
}

bool Page::isFilledByOneFrame() const {
    return m_frames.empty() || (m_frames.size() == 1 && isSame(m_frames.front()->placement,
                                                               regionOf(ExportRegion_WorkArea)));
}

Frame& Page::createFrame(Placement placement) {
    endWalk();
    m_frames.insert(m_frames.begin(), std::make_unique<Frame>(++m_lastId, placement));
    m_active = m_frames.front().get();
    return *m_active;
}

bool Page::deleteFrame(long id) {
    const auto found = findById(m_frames, id);
    if (found == m_frames.end()) {
        return false;
    }
    endWalk();
    const bool wasActive = found->get() == m_active;
    const auto below = m_frames.erase(found);
    if (wasActive) {
        m_active = below != m_frames.end() ? below->get() : nullptr;
    }
    if (m_active == nullptr) {
        activateTop();
    }
    return true;
}

std::vector<const Frame*> Page::frames() const {
    std::vector<const Frame*> frames;
    frames.reserve(m_frames.size());
    for (const std::unique_ptr<Frame>& frame : m_frames) {
        frames.push_back(frame.get());
    }
    return frames;
}

const Frame* Page::find(long id) const {
    const auto found = findById(m_frames, id);
    return found == m_frames.end() ? nullptr : found->get();
}

Frame* Page::find(long id) {
    return const_cast<Frame*>(std::as_const(*this).find(id));
}

bool Page::activate(long id) {
    Frame* frame = find(id);
    if (frame != nullptr) {
        m_active = frame;
    }
    return frame != nullptr;
}

bool Page::activateTop() {
    m_active = m_frames.empty() ? nullptr : m_frames.front().get();
    return m_active != nullptr;
}

bool Page::pushTop() {
    if (!m_frames.empty()) {
        std::rotate(m_frames.begin(), m_frames.begin() + 1, m_frames.end());
    }
    return activateTop();
}

bool Page::raise(long id) {
    const auto found = findById(m_frames, id);
    if (found == m_frames.end()) {
        return false;
    }
    endWalk();
    std::rotate(m_frames.begin(), found, found + 1);
    return true;
}

bool Page::lower(long id) {
    const auto found = findById(m_frames, id);
    if (found == m_frames.end()) {
        return false;
    }
    endWalk();
    std::rotate(found, found + 1, m_frames.end());
    return true;
}

void Page::startWalk() {
    if (!m_frames.empty()) {
        m_walk = 0;
    }
}

bool Page::nextOfWalk() {
    if (!m_walk || *m_walk + 1 >= m_frames.size()) {
        return false;
    }
    ++*m_walk;
    return true;
}

void Page::endWalk() {
    m_walk.reset();
}

const Frame* Page::current() const {
    return m_walk ? m_frames[*m_walk].get() : m_active;
}

Frame* Page::current() {
    return const_cast<Frame*>(std::as_const(*this).current());
}

const Frame* Page::currentSpatial() const {
    const Frame* const frame = current();
    return frame != nullptr && frame->isSpatial() ? frame : nullptr;
}

Frame* Page::currentSpatial() {
    return const_cast<Frame*>(std::as_const(*this).currentSpatial());
}

double Page::toPixels(double inches) const {
    return snapped(inches * workArea.pixelsPerInch);
}

double Page::toInches(double pixels) const {
    return snapped(pixels / workArea.pixelsPerInch);
}

Placement Page::regionOf(ExportRegion_e region) const {
    if (region == ExportRegion_CurrentFrame && m_active != nullptr) {
        return m_active->placement;
    }
    if (region == ExportRegion_AllFrames && !m_frames.empty()) {
        Placement all = m_frames.front()->placement;
        for (const auto& frame : m_frames) {
            all = united(all, frame->placement);
        }
        return all;
    }
    return {0.0, 0.0, toInches(workArea.width), toInches(workArea.height)};
}

} // namespace corvane::host
