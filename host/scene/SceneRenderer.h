// Draws pages with VTK, without any display server.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/scene/MemoryBudget.h"

#include <functional>
#include <memory>
#include <string>

namespace corvane::scene {

struct SceneStatistics;

/// Draws frames whose data were read by DataReaders. The context of OpenGL is made with the first
/// use; all calls must come from one thread.
class SceneRenderer : public host::Renderer {
public:
    /// Is told, in a sentence, when something that was asked for begins to be missing in pictures.
    using WarningCallback = std::function<void(const std::string&)>;

    /// Statistics may be null, and onWarning empty. memoryBudget: bytes of polygons that are kept
    /// for times and plots that come back.
    explicit SceneRenderer(std::shared_ptr<SceneStatistics> statistics = nullptr,
                           std::size_t memoryBudget = defaultMemoryBudget() / 4,
                           WarningCallback onWarning = {});
    ~SceneRenderer() override;

    host::Picture draw(const host::Page& page, const host::PictureRequest& request) override;
    /// What is larger than the GPU can draw at once is drawn in parts.
    int largestSize() const override;

    /// Draws in parts no larger than this, instead of what the GPU can draw at once. At least 16.
    void limitTarget(int pixels);

    /// Returns when what comes next has been read and built. Nobody needs to wait; those who count
    /// do.
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
