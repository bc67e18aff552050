// The host's screen: draws the page into the drawing area.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/gui/view/FramePacer.h"

namespace corvane::gui {

class DrawingArea;

/// All must outlive the screen.
class PictureScreen : public host::Screen {
public:
    PictureScreen(host::Renderer& renderer, DrawingArea& area, FramePacer& pacer)
        : m_renderer(renderer), m_area(area), m_pacer(pacer) {}

    void present(const host::Page& page, bool allFrames) override;

    /// Whether a picture is being drawn.
    bool isDrawing() const { return m_isDrawing; }

private:
    host::Renderer& m_renderer;
    DrawingArea& m_area;
    FramePacer& m_pacer;
    bool m_isDrawing = false;
};

} // namespace corvane::gui
