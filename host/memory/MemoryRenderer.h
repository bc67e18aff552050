// Draws nothing, and remembers what was to be drawn.
#pragma once

#include "host/core/page/FrameStyle.h"
#include "host/core/page/View3D.h"
#include "host/core/ports/Ports.h"

#include <cstddef>
#include <vector>

namespace corvane::memory {

/// What one picture showed of the active frame.
struct RenderedState {
    bool onScreen = false; ///< else for a movie or a file
    bool allFrames = true; ///< on the screen
    long frame = 0;        ///< id of the active frame, 0 without one
    host::View3D view;
    host::LightStyle light;
    host::StreamTimingStyle streamTiming;
    bool showAxis = false;
    double solutionTime = 0.0;
    host::PictureRequest request; ///< for pictures off screen
};

class MemoryRenderer : public host::Renderer, public host::Screen {
public:
    host::Picture draw(const host::Page& page, const host::PictureRequest& request) override;
    int largestSize() const override { return m_largestSize; }
    void present(const host::Page& page, bool allFrames) override;

    /// Pictures made, those on the screen included.
    std::size_t renders() const { return m_states.size(); }
    const std::vector<RenderedState>& states() const { return m_states; }
    /// What was asked for off screen.
    std::vector<host::PictureRequest> requests() const;
    /// Of each picture on the screen, whether it had to show all frames.
    std::vector<bool> presented() const;
    void clear() { m_states.clear(); }

    /// The k-th picture from now (1 = the next one) cannot be made: HostError.
    void failAt(std::size_t k) { m_failAt = k; }
    void setLargestSize(int pixels) { m_largestSize = pixels; }

private:
    void remember(const host::Page& page, RenderedState state);

    std::vector<RenderedState> m_states;
    std::size_t m_failAt = 0; ///< 0: never
    int m_largestSize = 32768;
};

} // namespace corvane::memory
