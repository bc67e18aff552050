#include "host/scene/FrameScene.h"

#include "host/core/base/HostError.h"
#include "host/scene/annotations/Background.h"
#include "host/scene/annotations/TimeText.h"
#include "host/scene/layout/CameraSetup.h"
#include "host/scene/style/Material.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace corvane::scene {

using host::Frame;

namespace {

// Parts of the frame's height.
constexpr double titleSizePart = 0.045;
constexpr double timeSizePart = 0.034;
constexpr double textMarginPart = 0.03;
constexpr double lineWidthPart = 1.0 / 600.0;
constexpr double traceWidthPart = 1.0 / 250.0;

std::shared_ptr<const SceneDataSet> sceneData(const Frame& frame) {
    auto data = std::dynamic_pointer_cast<const SceneDataSet>(frame.data());
    if (frame.data() != nullptr && data == nullptr) {
        throw host::HostError("The data of a frame cannot be drawn: another reader made them.");
    }
    return data;
}

std::string noTracesText(const StreamRequest& request) {
    const std::string& variable = request.recipe.variable;
    if (request.zones.empty()) {
        return "There are no streamtraces to show: the data have no volumes.";
    }
    if (variable.empty()) {
        return "There are no streamtraces to show: choose a vector variable for them.";
    }
    return "There are no streamtraces to show: no seed lies inside of the data where \"" +
           variable +
           "\" is a vector that is not zero. Move the seeds, or choose another variable.";
}

int pixels(double part, const FrameArea& area) {
    return std::max(1, static_cast<int>(std::lround(part * area.full.height)));
}

} // namespace

FrameScene::FrameScene(std::shared_ptr<PreparedGeometry> geometry)
    : m_geometry(std::move(geometry)),
      m_light(makeLight()),
      m_colorBar(*m_renderer),
      m_prefetcher(*m_geometry),
      m_streams(*m_renderer) {
    m_renderer->SetAutomaticLightCreation(0);
    m_renderer->AddLight(m_light);
    m_renderer->AddActor(m_outline.actor());
    m_renderer->AddActor2D(m_title.actor());
    m_renderer->AddActor2D(m_time.actor());
}

FrameScene::~FrameScene() {
    m_prefetcher.reset();
}

void FrameScene::hide() {
    m_renderer->DrawOff();
    m_axis.hide();
}

void FrameScene::update(const Frame& frame, const FrameArea& area, int pictureWidth,
                        int pictureHeight) {
    const PixelRect& visible = area.visible;
    m_renderer->DrawOn();
    m_renderer->SetViewport(static_cast<double>(visible.x) / pictureWidth,
                            static_cast<double>(visible.y) / pictureHeight,
                            static_cast<double>(visible.x + visible.width) / pictureWidth,
                            static_cast<double>(visible.y + visible.height) / pictureHeight);
    setBackground(*m_renderer, frame.style.annotations.background, area);
    setLight(*m_light, frame.style.light);

    updatePlots(frame, area);
    updateAnnotations(frame, area);
    const bool axis = frame.style.annotations.showAxis && m_data != nullptr && frame.isSpatial();
    if (axis) {
        m_axis.show(frame.view, textColorOn(frame.style.annotations.background), area, pictureWidth,
                    pictureHeight);
    } else {
        m_axis.hide();
    }
    setCamera(*m_renderer->GetActiveCamera(), frame.view, area, shownBounds());
}

void FrameScene::updatePlots(const Frame& frame, const FrameArea& area) {
    attach(frame);
    hidePlots();
    m_warning.clear();
    if (m_data != nullptr && frame.isSpatial()) {
        showContent(frame, area);
    }
    m_renderer->SetUseDepthPeeling(m_isTranslucent ? 1 : 0);
}

void FrameScene::attach(const Frame& frame) {
    auto data = sceneData(frame);
    if (data == m_data) {
        return;
    }
    m_prefetcher.reset();
    for (const auto& [key, plot] : m_plots) {
        m_renderer->RemoveActor(plot->actor());
    }
    m_plots.clear();
    if (m_data != nullptr) {
        m_geometry->forget(m_data->id());
    }
    m_data = std::move(data);
}

void FrameScene::hidePlots() {
    for (const auto& [key, plot] : m_plots) {
        plot->actor()->SetVisibility(0);
    }
    m_streams.hide();
    m_isTranslucent = false;
    m_isContourShown = false;
}

void FrameScene::showContent(const Frame& frame, const FrameArea& area) {
    m_colors.update(frame.style.contour, *m_data);
    const PictureContent content = contentAt(frame.style, *m_data, frame.solutionTime);
    m_prefetcher.beforeShowing(content);
    for (const PlotRequest& request : content.plots) {
        showPlot(request, frame.style.light);
    }
    if (content.streams) {
        showStreams(*content.streams, frame.style, area);
    }
    m_prefetcher.prefetch(frame.style, m_data, frame.solutionTime, content);
}

void FrameScene::showPlot(const PlotRequest& request, const host::LightStyle& light) {
    const Recipe& recipe = request.recipe;
    auto& plot = m_plots[{recipe.kind, request.number, recipe.mesh.block}];
    if (plot == nullptr) {
        plot = std::make_unique<PlotActor>();
        m_renderer->AddActor(plot->actor());
    }
    plot->setGeometry(m_geometry->plot(request, *m_data));
    if (plot->isEmpty() || request.appearance.opacity <= 0.0) {
        return;
    }
    plot->setAppearance(request.appearance, m_colors, light);
    plot->actor()->SetVisibility(1);
    m_isTranslucent = m_isTranslucent || request.appearance.opacity < 1.0;
    m_isContourShown = m_isContourShown || request.appearance.useContour;
}

void FrameScene::showStreams(const StreamRequest& request, const host::FrameStyle& style,
                             const FrameArea& area) {
    m_streams.setGeometry(m_geometry->streams(request, *m_data));
    const bool lackedTraces = std::exchange(m_lacksTraces, m_streams.isEmpty());
    if (m_lacksTraces) {
        if (!lackedTraces) {
            m_warning = noTracesText(request);
        }
        return;
    }
    m_streams.show(style, m_colors, request.markerSize,
                   std::max(1.0, traceWidthPart * area.full.height));
    m_isContourShown = m_isContourShown || style.streamtraces.useContour;
}

void FrameScene::updateAnnotations(const Frame& frame, const FrameArea& area) {
    const host::AnnotationStyle& style = frame.style.annotations;
    const host::Color textColor = textColorOn(style.background);

    if (style.showOutline && m_data != nullptr && frame.isSpatial()) {
        m_outline.show(m_data->bounds, lineColorOn(style.background), frame.style.light,
                       std::max(1.0, lineWidthPart * area.full.height));
    } else {
        m_outline.hide();
    }
    updateLegend(frame, area);

    const double top = area.offsetY() + area.full.height - pixels(textMarginPart, area);
    TextAppearance appearance{pixels(titleSizePart, area), textColor};
    appearance.vertical = TextAppearance::Align::High;
    appearance.horizontal = TextAppearance::Align::Middle;
    m_title.show(style.title, area.offsetX() + 0.5 * area.full.width, top, appearance);

    appearance.size = pixels(timeSizePart, area);
    appearance.horizontal = TextAppearance::Align::Low;
    const bool showTime = style.showTime && m_data != nullptr;
    m_time.show(showTime ? timeText(frame.solutionTime, *m_data) : std::string(),
                area.offsetX() + pixels(textMarginPart, area), top, appearance);
}

void FrameScene::updateLegend(const Frame& frame, const FrameArea& area) {
    const bool isKnown =
        m_data != nullptr && m_data->findVariable(m_colors.variable().array) != nullptr;
    if (m_isContourShown && isKnown && frame.style.contour.showLegend) {
        m_colorBar.show(m_colors, displayName(m_colors.variable(), *m_data),
                        textColorOn(frame.style.annotations.background), area);
    } else {
        m_colorBar.hide();
    }
}

host::Bounds FrameScene::shownBounds() const {
    std::array<double, 6> box{};
    m_renderer->ComputeVisiblePropBounds(box.data());
    host::Bounds bounds;
    if (box[0] <= box[1]) {
        bounds.add({box[0], box[2], box[4]});
        bounds.add({box[1], box[3], box[5]});
    }
    return bounds;
}

} // namespace corvane::scene
