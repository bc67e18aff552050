#include "host/scene/SceneRenderer.h"

#include "host/core/base/HostError.h"
#include "host/core/base/Limits.h"
#include "host/core/page/Page.h"
#include "host/scene/FrameScene.h"
#include "host/scene/ahead/PreparedGeometry.h"
#include "host/scene/data/SceneStatistics.h"
#include "host/scene/layout/Downsample.h"
#include "host/scene/layout/PageLayout.h"
#include "host/scene/vtk/EglContext.h"
#include "host/scene/vtk/EglRenderWindow.h"
#include "host/scene/vtk/VtkMessages.h"

#include <vtkNew.h>
#include <vtkRendererCollection.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace corvane::scene {

namespace {

host::Picture emptyPicture(const host::PictureRequest& request) {
    const std::size_t pixels =
        static_cast<std::size_t>(request.width) * static_cast<std::size_t>(request.height);
    return {request.width, request.height, std::vector<std::uint8_t>(pixels * 4)};
}

/// x, y: the upper left corner of the piece in the picture, whose top row is 0.
void paste(host::Picture& picture, const host::Picture& piece, int x, int y) {
    for (int row = 0; row < piece.height; ++row) {
        const std::size_t target =
            (static_cast<std::size_t>(y + row) * static_cast<std::size_t>(picture.width) +
             static_cast<std::size_t>(x)) *
            4;
        std::copy_n(piece.row(row), static_cast<std::size_t>(piece.width) * 4,
                    picture.rgba.begin() + static_cast<std::ptrdiff_t>(target));
    }
}

} // namespace

/// The render window, and the scene of each frame.
class SceneRenderer::Canvas {
public:
    Canvas(std::shared_ptr<SceneStatistics> statistics, std::size_t budget,
           WarningCallback onWarning)
        : m_onWarning(std::move(onWarning)),
          m_statistics(std::move(statistics)),
          m_geometry(std::make_shared<PreparedGeometry>(budget, m_statistics)) {
        m_window->open(m_context);
        m_largestTarget = m_window->largestSize();
        m_paper->SetBackground(1.0, 1.0, 1.0);
    }

    void limitTarget(int pixels) { m_largestTarget = std::min(m_largestTarget, pixels); }
    void waitForReadAhead() { m_geometry->wait(); }
    host::Picture draw(const host::Page& page, const host::PictureRequest& request);

private:
    host::Picture drawTile(const PixelRect& tile, const std::vector<FrameInPicture>& frames,
                           int supersample);
    void prepareFrames(const host::Page& page);
    void forgetDeletedFrames(const host::Page& page);
    void orderRenderers(const host::Page& page);

    WarningCallback m_onWarning;
    EglContext m_context;
    vtkNew<EglRenderWindow> m_window;
    int m_largestTarget = 0; ///< that can be drawn at once
    std::shared_ptr<SceneStatistics> m_statistics;
    std::shared_ptr<PreparedGeometry> m_geometry;
    vtkNew<vtkRenderer> m_paper;
    std::map<long, std::unique_ptr<FrameScene>> m_frames;
    std::vector<vtkRenderer*> m_order;
    vtkNew<vtkUnsignedCharArray> m_pixels;
};

host::Picture SceneRenderer::Canvas::draw(const host::Page& page,
                                          const host::PictureRequest& request) {
    // VTK's complaints about odd data must neither stop a movie nor reach the terminal.
    const VtkMessages silenced;
    m_window->MakeCurrent();
    prepareFrames(page);
    const auto frames = framesInPicture(page, request);
    const auto tiles = tilesOf(request, m_largestTarget);
    if (tiles.size() == 1) {
        return drawTile(tiles.front(), frames, request.supersample);
    }
    host::Picture picture = emptyPicture(request);
    for (const PixelRect& tile : tiles) {
        paste(picture, drawTile(tile, frames, request.supersample), tile.x / request.supersample,
              request.height - (tile.y + tile.height) / request.supersample);
    }
    return picture;
}

host::Picture SceneRenderer::Canvas::drawTile(const PixelRect& tile,
                                              const std::vector<FrameInPicture>& frames,
                                              int supersample) {
    m_window->SetSize(tile.width, tile.height);
    for (const auto& [id, scene] : m_frames) {
        scene->hide();
    }
    for (const FrameInPicture& shown : framesInTile(frames, tile)) {
        FrameScene& scene = *m_frames[shown.frame->id()];
        scene.update(*shown.frame, shown.area, tile.width, tile.height);
        if (m_onWarning && !scene.warning().empty()) {
            m_onWarning(scene.warning());
        }
    }
    m_window->Render();
    ++m_statistics->renders;
    m_window->GetRGBACharPixelData(0, 0, tile.width - 1, tile.height - 1, 1, m_pixels);
    return finishPicture(m_pixels->GetPointer(0), tile.width / supersample,
                         tile.height / supersample, supersample);
}

void SceneRenderer::Canvas::prepareFrames(const host::Page& page) {
    forgetDeletedFrames(page);
    for (const auto& frame : page.frames()) {
        auto& scene = m_frames[frame->id()];
        if (scene == nullptr) {
            scene = std::make_unique<FrameScene>(m_geometry);
        }
    }
    orderRenderers(page);
}

void SceneRenderer::Canvas::forgetDeletedFrames(const host::Page& page) {
    for (auto entry = m_frames.begin(); entry != m_frames.end();) {
        if (page.find(entry->first) != nullptr) {
            ++entry;
            continue;
        }
        for (vtkRenderer* const renderer : entry->second->renderers()) {
            m_window->RemoveRenderer(renderer);
            std::erase(m_order, renderer);
        }
        entry = m_frames.erase(entry);
    }
}

void SceneRenderer::Canvas::orderRenderers(const host::Page& page) {
    std::vector<vtkRenderer*> order{m_paper};
    std::vector<const host::Frame*> bottomUp = page.frames();
    std::reverse(bottomUp.begin(), bottomUp.end());
    for (const host::Frame* const frame : bottomUp) {
        for (vtkRenderer* const renderer : m_frames[frame->id()]->renderers()) {
            order.push_back(renderer);
        }
    }
    if (order == m_order) {
        return;
    }
    // Removing a renderer from the window frees what it has uploaded, so avoid it.
    for (vtkRenderer* const renderer : m_order) {
        m_window->RemoveRenderer(renderer);
    }
    for (vtkRenderer* const renderer : order) {
        m_window->AddRenderer(renderer);
    }
    m_order = std::move(order);
}

SceneRenderer::SceneRenderer(std::shared_ptr<SceneStatistics> statistics, std::size_t memoryBudget,
                             WarningCallback onWarning)
    : m_statistics(statistics ? std::move(statistics) : std::make_shared<SceneStatistics>()),
      m_memoryBudget(memoryBudget),
      m_onWarning(std::move(onWarning)) {}

SceneRenderer::~SceneRenderer() = default;

SceneRenderer::Canvas& SceneRenderer::canvas() const {
    if (m_canvas == nullptr) {
        m_canvas = std::make_unique<Canvas>(m_statistics, m_memoryBudget, m_onWarning);
    }
    return *m_canvas;
}

int SceneRenderer::largestSize() const {
    return host::limits::pictureSide.most * host::limits::supersampling.most;
}

void SceneRenderer::limitTarget(int pixels) {
    canvas().limitTarget(std::max(host::limits::supersampling.most, pixels));
}

void SceneRenderer::waitForReadAhead() {
    canvas().waitForReadAhead();
}

host::Picture SceneRenderer::draw(const host::Page& page, const host::PictureRequest& request) {
    const auto largest = static_cast<long>(largestSize());
    const long factor = request.supersample;
    if (request.width < 1 || request.height < 1 || factor < 1 || request.width * factor > largest ||
        request.height * factor > largest) {
        throw host::HostError("A picture of " + std::to_string(request.width) + " x " +
                              std::to_string(request.height) + " pixels, drawn " +
                              std::to_string(factor) +
                              " times larger, cannot be made: sizes from 1 to " +
                              std::to_string(largest) + " can be drawn here.");
    }
    return canvas().draw(page, request);
}

} // namespace corvane::scene
