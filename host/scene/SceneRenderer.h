// Draws pages with VTK, without any display server.
#pragma once

#include "host/core/Ports.h"

#include <memory>

namespace corvane::scene {

struct SceneStatistics;

/// Draws frames whose data were read by DataReaders. The context of OpenGL is made with the first
/// use; all calls must come from one thread.
class SceneRenderer : public host::Renderer {
public:
    /// Statistics may be null.
    explicit SceneRenderer(std::shared_ptr<SceneStatistics> statistics = nullptr);
    ~SceneRenderer() override;

    host::Picture draw(const host::Page& page, const host::PictureRequest& request) override;
    int largestSize() const override;

private:
    class Canvas;

    Canvas& canvas() const;

    std::shared_ptr<SceneStatistics> m_statistics;
    mutable std::unique_ptr<Canvas> m_canvas;
};

} // namespace corvane::scene
