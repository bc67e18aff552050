// The VTK objects that draw one frame, kept between pictures.
#pragma once

#include "host/core/page/Frame.h"
#include "host/scene/ahead/Prefetcher.h"
#include "host/scene/ahead/PreparedGeometry.h"
#include "host/scene/annotations/ColorBar.h"
#include "host/scene/annotations/FrameRenderer.h"
#include "host/scene/annotations/OrientationAxis.h"
#include "host/scene/annotations/Outline.h"
#include "host/scene/annotations/TextItem.h"
#include "host/scene/data/SceneDataSet.h"
#include "host/scene/layout/PixelRect.h"
#include "host/scene/plots/PlotActor.h"
#include "host/scene/plots/StreamPlot.h"
#include "host/scene/style/ContourColors.h"

#include <vtkLight.h>
#include <vtkNew.h>
#include <vtkRenderer.h>
#include <vtkSmartPointer.h>

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace corvane::scene {

/// Everything is set from the frame again for each picture; what is expensive is rebuilt only when
/// its input has changed. So a picture never depends on the previous ones.
class FrameScene {
public:
    explicit FrameScene(std::shared_ptr<PreparedGeometry> geometry);
    ~FrameScene();
    FrameScene(const FrameScene&) = delete;
    FrameScene& operator=(const FrameScene&) = delete;

    void update(const host::Frame& frame, const FrameArea& area, int pictureWidth,
                int pictureHeight);
    /// What has been missing since the last update, as a sentence; empty when that is nothing new.
    const std::string& warning() const { return m_warning; }
    void hide(); ///< leaves this frame out of the next picture

    /// In the order of drawing.
    std::vector<vtkRenderer*> renderers() const { return {m_renderer, m_axis.renderer()}; }

private:
    /// Kind of plot, number in the style, block.
    using PlotKey = std::tuple<Recipe::Kind, int, int>;

    void updatePlots(const host::Frame& frame, const FrameArea& area);
    void attach(const host::Frame& frame);
    void hidePlots();
    void showContent(const host::Frame& frame, const FrameArea& area);
    void showPlot(const PlotRequest& request, const host::LightStyle& light);
    void showStreams(const StreamRequest& request, const host::FrameStyle& style,
                     const FrameArea& area);
    void updateAnnotations(const host::Frame& frame, const FrameArea& area);
    void updateLegend(const host::Frame& frame, const FrameArea& area);
    host::Bounds shownBounds() const;

    std::shared_ptr<PreparedGeometry> m_geometry;
    vtkNew<FrameRenderer> m_renderer;
    vtkSmartPointer<vtkLight> m_light;
    ContourColors m_colors;
    Outline m_outline;
    ColorBar m_colorBar;
    OrientationAxis m_axis;
    TextItem m_title;
    TextItem m_time;

    std::shared_ptr<const SceneDataSet> m_data; ///< whose plots are kept
    Prefetcher m_prefetcher;
    std::map<PlotKey, std::unique_ptr<PlotActor>> m_plots;
    StreamPlot m_streams;
    std::string m_warning;
    bool m_lacksTraces = false;
    bool m_isTranslucent = false;
    bool m_isContourShown = false;
};

} // namespace corvane::scene
