// Draws pages with VTK, without any display server.
#include "host/scene/SceneRenderer.h"

#include "host/core/HostError.h"
#include "host/core/Page.h"
#include "host/scene/Downsample.h"
#include "host/scene/EglContext.h"
#include "host/scene/EglRenderWindow.h"
#include "host/scene/FrameScene.h"
#include "host/scene/PageLayout.h"
#include "host/scene/PreparedGeometry.h"
#include "host/scene/SceneStatistics.h"
#include "host/scene/VtkMessages.h"

#include <vtkNew.h>
#include <vtkRendererCollection.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace corvane::scene {

/// The window, and what is kept of each frame.
class SceneRenderer::Canvas {
public:
    Canvas(std::shared_ptr<SceneStatistics> statistics, std::size_t budget)
        : m_statistics(std::move(statistics)),
          m_geometry(std::make_shared<PreparedGeometry>(budget, m_statistics)) {
        m_window->open(m_context);
        m_largestSize = m_window->largestSize();
        m_paper->SetBackground(1.0, 1.0, 1.0);
    }

    int largestSize() const { return m_largestSize; }
    void waitForReadAhead() { m_geometry->wait(); }
    /// The warnings of the frames go to the listener, where there is one.
    host::Picture draw(const host::Page& page, const host::PictureRequest& request,
                       const std::function<void(const std::string&)>& onWarning);

private:
    void updateFrames(const host::Page& page, const host::PictureRequest& request,
                      const std::function<void(const std::string&)>& onWarning);
    void forgetDeletedFrames(const host::Page& page);
    void orderRenderers(const host::Page& page);

    EglContext m_context;
    vtkNew<EglRenderWindow> m_window;
    int m_largestSize = 0;
    std::shared_ptr<SceneStatistics> m_statistics;
    std::shared_ptr<PreparedGeometry> m_geometry;
    vtkNew<vtkRenderer> m_paper;
    std::map<long, std::unique_ptr<FrameScene>> m_frames;
    std::vector<vtkRenderer*> m_order;
    vtkNew<vtkUnsignedCharArray> m_pixels;
};

host::Picture
SceneRenderer::Canvas::draw(const host::Page& page, const host::PictureRequest& request,
                            const std::function<void(const std::string&)>& onWarning) {
    // Odd data must neither stop a movie nor write to the terminal.
    const VtkMessages silenced;
    const int width = request.width * request.supersample;
    const int height = request.height * request.supersample;
    m_window->MakeCurrent();
    m_window->SetSize(width, height);
    updateFrames(page, request, onWarning);
    m_window->Render();
    ++m_statistics->renders;
    m_window->GetRGBACharPixelData(0, 0, width - 1, height - 1, 1, m_pixels);
    return finishPicture(m_pixels->GetPointer(0), request.width, request.height,
                         request.supersample);
}

void SceneRenderer::Canvas::updateFrames(const host::Page& page,
                                         const host::PictureRequest& request,
                                         const std::function<void(const std::string&)>& onWarning) {
    forgetDeletedFrames(page);
    for (const auto& frame : page.frames()) {
        auto& scene = m_frames[frame->id()];
        if (scene == nullptr)
            scene = std::make_unique<FrameScene>(m_geometry);
        scene->hide();
    }
    orderRenderers(page);
    for (const FrameInPicture& shown : framesInPicture(page, request)) {
        FrameScene& scene = *m_frames[shown.frame->id()];
        scene.update(*shown.frame, shown.area, m_window->GetSize()[0], m_window->GetSize()[1]);
        if (onWarning && !scene.warning().empty())
            onWarning(scene.warning());
    }
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
    for (auto frame = page.frames().rbegin(); frame != page.frames().rend(); ++frame)
        for (vtkRenderer* const renderer : m_frames[(*frame)->id()]->renderers())
            order.push_back(renderer);
    if (order == m_order)
        return;
    // Taking a renderer out of the window frees what it has uploaded: only when it must be.
    for (vtkRenderer* const renderer : m_order)
        m_window->RemoveRenderer(renderer);
    for (vtkRenderer* const renderer : order)
        m_window->AddRenderer(renderer);
    m_order = std::move(order);
}

SceneRenderer::SceneRenderer(std::shared_ptr<SceneStatistics> statistics, std::size_t memoryBudget)
    : m_statistics(statistics ? std::move(statistics) : std::make_shared<SceneStatistics>()),
      m_memoryBudget(memoryBudget) {}

SceneRenderer::~SceneRenderer() = default;

SceneRenderer::Canvas& SceneRenderer::canvas() const {
    if (m_canvas == nullptr)
        m_canvas = std::make_unique<Canvas>(m_statistics, m_memoryBudget);
    return *m_canvas;
}

int SceneRenderer::largestSize() const {
    return canvas().largestSize();
}

void SceneRenderer::waitForReadAhead() {
    canvas().waitForReadAhead();
}

host::Picture SceneRenderer::draw(const host::Page& page, const host::PictureRequest& request) {
    const auto largest = static_cast<long>(largestSize());
    const long factor = request.supersample;
    if (request.width < 1 || request.height < 1 || factor < 1 || request.width * factor > largest ||
        request.height * factor > largest)
        throw host::HostError("A picture of " + std::to_string(request.width) + " x " +
                              std::to_string(request.height) + " pixels, drawn " +
                              std::to_string(factor) +
                              " times larger, cannot be made: sizes from 1 to " +
                              std::to_string(largest) + " can be drawn here.");
    return canvas().draw(page, request, onWarning);
}

} // namespace corvane::scene
