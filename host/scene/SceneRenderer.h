// Draws pages with VTK, without any display server.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/scene/MemoryBudget.h"

#include <functional>
#include <memory>
#include <string>

namespace corvane::scene {

struct SceneStatistics;

/// Draws frames whose data were read by DataReaders. The OpenGL context is created on first use;
/// all calls must come from one thread.
class SceneRenderer : public host::Renderer {
public:
    /// Receives a sentence when something that was asked for starts to be missing in pictures.
    using WarningCallback = std::function<void(const std::string&)>;

    /// Statistics may be null, and onWarning empty. memoryBudget: the size of the cache of polygons
    /// in bytes.
    explicit SceneRenderer(std::shared_ptr<SceneStatistics> statistics = nullptr,
                           std::size_t memoryBudget = defaultMemoryBudget() / 4,
                           WarningCallback onWarning = {});
    ~SceneRenderer() override;

    host::Picture draw(const host::Page& page, const host::PictureRequest& request) override;
    /// Pictures that are larger than what the GPU can draw at once are drawn in tiles.
    int largestSize() const override;

    /// Draws in tiles no larger than this, even if the GPU can draw larger ones. At least 16.
    void limitTarget(int pixels);

    /// Waits until all prefetching is done. Only those who count what was done need this.
    void waitForReadAhead();

private:
    class Canvas;

    Canvas& canvas() const;

    std::shared_ptr<SceneStatistics> m_statistics;
    std::size_t m_memoryBudget;
    WarningCallback m_onWarning;
    mutable std::unique_ptr<Canvas> m_canvas;
};

} // namespace corvane::scene
