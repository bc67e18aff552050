// Draws nothing, and remembers what was to be drawn.
#include "host/memory/MemoryRenderer.h"

#include "host/core/base/HostError.h"
#include "host/core/page/Page.h"

#include <utility>

namespace corvane::memory {

host::Picture MemoryRenderer::draw(const host::Page& page, const host::PictureRequest& request) {
    RenderedState state;
    state.request = request;
    remember(page, std::move(state));
    const auto pixels = static_cast<std::size_t>(request.width) * std::size_t(request.height);
    return {request.width, request.height, std::vector<std::uint8_t>(4 * pixels, 255)};
}

void MemoryRenderer::present(const host::Page& page, bool allFrames) {
    RenderedState state;
    state.onScreen = true;
    state.allFrames = allFrames;
    remember(page, std::move(state));
}

std::vector<host::PictureRequest> MemoryRenderer::requests() const {
    std::vector<host::PictureRequest> requests;
    for (const RenderedState& state : m_states) {
        if (!state.onScreen) {
            requests.push_back(state.request);
        }
    }
    return requests;
}

std::vector<bool> MemoryRenderer::presented() const {
    std::vector<bool> presented;
    for (const RenderedState& state : m_states) {
        if (state.onScreen) {
            presented.push_back(state.allFrames);
        }
    }
    return presented;
}

void MemoryRenderer::remember(const host::Page& page, RenderedState state) {
    if (m_failAt > 0 && --m_failAt == 0) {
        throw host::HostError("The picture could not be drawn.");
    }
    if (const host::Frame* const frame = page.active()) {
        state.frame = frame->id();
        state.view = frame->view;
        state.light = frame->style.light;
        state.streamTiming = frame->style.streamTiming;
        state.showAxis = frame->style.annotations.showAxis;
        state.solutionTime = frame->solutionTime;
    }
    m_states.push_back(std::move(state));
}

} // namespace corvane::memory
