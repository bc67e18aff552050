// What VTK needs to draw one frame, kept from picture to picture.
#include "host/scene/FrameScene.h"

#include "host/core/HostError.h"
#include "host/scene/Backdrop.h"
#include "host/scene/CameraSetup.h"
#include "host/scene/Material.h"
#include "host/scene/TimeText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace corvane::scene {

using host::Frame;

namespace {

// Parts of the frame's height.
constexpr double titleSizePart = 0.045;
constexpr double timeSizePart = 0.034;
constexpr double textMarginPart = 0.03;
constexpr double lineWidthPart = 1.0 / 600.0;
constexpr double traceWidthPart = 1.0 / 250.0;

/// Radius of streamtubes that the style leaves open, as a part of the diagonal of the data.
constexpr double tubeRadiusPart = 0.0025;

const SceneDataSet* sceneData(const Frame& frame) {
    if (frame.data() == nullptr)
        return nullptr;
    const auto* const data = dynamic_cast<const SceneDataSet*>(frame.data().get());
    if (data == nullptr)
        throw host::HostError("The data of a frame cannot be drawn: another reader made them.");
    return data;
}

int pixels(double part, const FrameArea& area) {
    return std::max(1, static_cast<int>(std::lround(part * area.full.height)));
}

} // namespace

FrameScene::FrameScene(std::shared_ptr<SceneStatistics> statistics)
    : m_statistics(std::move(statistics)),
      m_light(makeLight()),
      m_colorBar(*m_renderer),
      m_streams(*m_renderer, *m_statistics) {
    m_renderer->SetAutomaticLightCreation(0);
    m_renderer->AddLight(m_light);
    m_renderer->AddActor(m_outline.actor());
    m_renderer->AddActor2D(m_title.actor());
    m_renderer->AddActor2D(m_time.actor());
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
    setBackground(*m_renderer, frame.style.annotations.background);
    setLight(*m_light, frame.style.light);

    updatePlots(frame, area);
    updateAnnotations(frame, area);
    const bool axis = frame.style.annotations.showAxis && m_data != nullptr &&
                      frame.plotType == PlotType_Cartesian3D;
    if (axis)
        m_axis.show(frame.view, textColorOn(frame.style.annotations.background), area, pictureWidth,
                    pictureHeight);
    else
        m_axis.hide();
    setCamera(*m_renderer->GetActiveCamera(), frame.view, area, shownBounds());
}

void FrameScene::updatePlots(const Frame& frame, const FrameArea& area) {
    if (frame.data() != m_data) {
        for (const auto& [key, plot] : m_plots)
            m_renderer->RemoveActor(plot->actor());
        m_plots.clear();
        m_data = frame.data();
    }
    for (const auto& [key, plot] : m_plots)
        plot->actor()->SetVisibility(0);
    m_streams.hide();
    m_isTranslucent = false;
    m_isContourShown = false;
    if (frame.plotType != PlotType_Cartesian3D)
        return;
    if (const SceneDataSet* const data = sceneData(frame)) {
        updatePlots(frame, *data);
        updateStreams(frame, *data, area);
    }
    m_renderer->SetUseDepthPeeling(m_isTranslucent ? 1 : 0);
}

void FrameScene::updatePlots(const Frame& frame, const SceneDataSet& data) {
    m_colors.update(frame.style.contour, data);
    for (const int zone : zonesAtTime(data, frame.solutionTime)) {
        const int block = data.zones[static_cast<std::size_t>(zone)].block;
        addSurface(frame, data, zone);
        if (data.blocks[static_cast<std::size_t>(block)].dimension == 3) {
            addSlices(frame, data, zone);
            addIsoSurfaces(frame, data, zone);
        }
    }
}

void FrameScene::addSurface(const Frame& frame, const SceneDataSet& data, int zone) {
    const MeshId mesh = data.meshId(zone);
    const auto block = static_cast<std::size_t>(mesh.block);
    if (block >= frame.style.surfaces.size() || !frame.style.surfaces[block].show)
        return;
    const host::SurfaceStyle& style = frame.style.surfaces[block];
    showPlot(frame, data, zone, 0, {mesh, Recipe::Kind::Surface, 0, 0.0, {}},
             {style.useContour, style.color, style.opacity, style.showMesh});
}

void FrameScene::addSlices(const Frame& frame, const SceneDataSet& data, int zone) {
    const MeshId mesh = data.meshId(zone);
    for (int i = 0; i < host::FrameStyle::sliceCount; ++i) {
        const host::SliceStyle& style = frame.style.slices[static_cast<std::size_t>(i)];
        if (style.show)
            showPlot(frame, data, zone, i,
                     {mesh, Recipe::Kind::Slice, style.axis, style.position, {}},
                     {style.useContour, style.color, style.opacity, false, false});
    }
}

void FrameScene::addIsoSurfaces(const Frame& frame, const SceneDataSet& data, int zone) {
    const MeshId mesh = data.meshId(zone);
    for (int i = 0; i < host::FrameStyle::isoSurfaceCount; ++i) {
        const host::IsoSurfaceStyle& style = frame.style.isoSurfaces[static_cast<std::size_t>(i)];
        if (style.show)
            showPlot(frame, data, zone, i,
                     {mesh, Recipe::Kind::IsoSurface, 0, style.value, style.variable},
                     {style.useContour, style.color, style.opacity});
    }
}

void FrameScene::updateStreams(const Frame& frame, const SceneDataSet& data,
                               const FrameArea& area) {
    const host::StreamtraceStyle& style = frame.style.streamtraces;
    if (!style.show)
        return;
    std::vector<int> zones;
    std::vector<MeshId> meshes;
    for (const int zone : zonesAtTime(data, frame.solutionTime)) {
        const MeshId mesh = data.meshId(zone);
        if (data.blocks[static_cast<std::size_t>(mesh.block)].dimension == 3) {
            zones.push_back(zone);
            meshes.push_back(mesh);
        }
    }
    m_streams.setTraces(streamRecipe(style, meshes), [&] {
        StreamPlot::Meshes read;
        for (const int zone : zones)
            read.push_back(data.mesh(zone));
        return read;
    });
    if (m_streams.isEmpty())
        return;
    const double radius =
        style.radius > 0.0 ? style.radius : tubeRadiusPart * data.bounds.diagonal();
    m_streams.show(frame.style, m_colors, radius, std::max(1.0, traceWidthPart * area.full.height));
    m_isContourShown = m_isContourShown || style.useContour;
}

void FrameScene::showPlot(const Frame& frame, const SceneDataSet& data, int zone, int number,
                          const Recipe& recipe, const Look& look) {
    auto& plot = m_plots[{recipe.kind, number, recipe.mesh.block}];
    if (plot == nullptr) {
        plot = std::make_unique<Plot>();
        m_renderer->AddActor(plot->actor());
    }
    plot->setGeometry(recipe, [&](const Recipe& wanted) {
        return buildGeometry(wanted, data.mesh(zone), *m_statistics);
    });
    if (plot->isEmpty() || look.opacity <= 0.0)
        return;
    plot->setLook(look, m_colors, frame.style.light);
    plot->actor()->SetVisibility(1);
    m_isTranslucent = m_isTranslucent || look.opacity < 1.0;
    m_isContourShown = m_isContourShown || look.useContour;
}

void FrameScene::updateAnnotations(const Frame& frame, const FrameArea& area) {
    const host::AnnotationStyle& style = frame.style.annotations;
    const host::Color textColor = textColorOn(style.background);

    if (style.showOutline && m_data != nullptr && frame.plotType == PlotType_Cartesian3D)
        m_outline.show(m_data->bounds, lineColorOn(style.background), frame.style.light,
                       std::max(1.0, lineWidthPart * area.full.height));
    else
        m_outline.hide();
    updateLegend(frame, area);

    const double top = area.offsetY() + area.full.height - pixels(textMarginPart, area);
    TextLook look{pixels(titleSizePart, area), textColor};
    look.vertical = TextLook::Align::High;
    look.horizontal = TextLook::Align::Middle;
    m_title.show(style.title, area.offsetX() + 0.5 * area.full.width, top, look);

    look.size = pixels(timeSizePart, area);
    look.horizontal = TextLook::Align::Low;
    const bool showTime = style.showTime && m_data != nullptr;
    m_time.show(showTime ? timeText(frame.solutionTime, *m_data) : std::string(),
                area.offsetX() + pixels(textMarginPart, area), top, look);
}

void FrameScene::updateLegend(const Frame& frame, const FrameArea& area) {
    const bool isKnown =
        m_data != nullptr && m_data->findVariable(m_colors.variable().array) != nullptr;
    if (m_isContourShown && isKnown && frame.style.contour.showLegend)
        m_colorBar.show(m_colors, displayName(m_colors.variable(), *m_data),
                        textColorOn(frame.style.annotations.background), area);
    else
        m_colorBar.hide();
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
