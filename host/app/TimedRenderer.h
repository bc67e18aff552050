// Measures how long drawing takes, for the summary of a flight.
#pragma once

#include "host/core/ports/Ports.h"

#include <chrono>

namespace corvane::app {

class TimedRenderer : public host::Renderer {
public:
    explicit TimedRenderer(host::Renderer& renderer) : m_renderer(renderer) {}

    host::Picture draw(const host::Page& page, const host::PictureRequest& request) override {
        const auto start = std::chrono::steady_clock::now();
        host::Picture picture = m_renderer.draw(page, request);
        m_seconds +=
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        return picture;
    }
    int largestSize() const override { return m_renderer.largestSize(); }

    double seconds() const { return m_seconds; }

private:
    host::Renderer& m_renderer;
    double m_seconds = 0.0;
};

} // namespace corvane::app
