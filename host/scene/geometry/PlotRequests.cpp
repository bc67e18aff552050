#include "host/scene/geometry/PlotRequests.h"

namespace corvane::scene {

namespace {

/// Default radius of streamtubes, relative to the diagonal of the data.
constexpr double tubeRadiusPart = 0.0025;

void addSurface(PictureContent& content, const host::FrameStyle& style, const MeshId& mesh,
                int zone) {
    const auto block = static_cast<std::size_t>(mesh.block);
    if (block >= style.surfaces.size() || !style.surfaces[block].show) {
        return;
    }
    const host::SurfaceStyle& surface = style.surfaces[block];
    content.plots.push_back(
        {zone,
         0,
         {mesh, Recipe::Kind::Surface, 0, 0.0, {}},
         {surface.useContour, surface.color, surface.opacity, surface.showMesh}});
}

void addSlices(PictureContent& content, const host::FrameStyle& style, const MeshId& mesh,
               int zone) {
    for (int i = 0; i < host::FrameStyle::sliceCount; ++i) {
        const host::SliceStyle& slice = style.slices[static_cast<std::size_t>(i)];
        if (slice.show) {
            content.plots.push_back({zone,
                                     i,
                                     {mesh, Recipe::Kind::Slice, slice.axis, slice.position, {}},
                                     {slice.useContour, slice.color, slice.opacity, false, false}});
        }
    }
}

void addIsoSurfaces(PictureContent& content, const host::FrameStyle& style, const MeshId& mesh,
                    int zone) {
    for (int i = 0; i < host::FrameStyle::isoSurfaceCount; ++i) {
        const host::IsoSurfaceStyle& surface = style.isoSurfaces[static_cast<std::size_t>(i)];
        if (surface.show) {
            content.plots.push_back(
                {zone,
                 i,
                 {mesh, Recipe::Kind::IsoSurface, 0, surface.value, surface.variable},
                 {surface.useContour, surface.color, surface.opacity}});
        }
    }
}

bool isVolume(const SceneDataSet& data, int zone) {
    const auto block = static_cast<std::size_t>(data.zones[static_cast<std::size_t>(zone)].block);
    return data.blocks[block].dimension == 3;
}

void addStreams(PictureContent& content, const host::StreamtraceStyle& style,
                const SceneDataSet& data) {
    if (!style.show) {
        return;
    }
    StreamRequest streams;
    std::vector<MeshId> meshes;
    for (const int zone : content.zones) {
        if (isVolume(data, zone)) {
            streams.zones.push_back(zone);
            meshes.push_back(data.meshId(zone));
        }
    }
    streams.recipe = streamRecipe(style, std::move(meshes));
    streams.markerSize =
        style.radius > 0.0 ? style.radius : tubeRadiusPart * data.bounds.diagonal();
    streams.tubeRadius = style.tubes ? streams.markerSize : 0.0;
    content.streams = std::move(streams);
}

} // namespace

PictureContent contentAt(const host::FrameStyle& style, const SceneDataSet& data,
                         double solutionTime) {
    PictureContent content;
    content.zones = zonesAtTime(data, solutionTime);
    for (const int zone : content.zones) {
        const MeshId mesh = data.meshId(zone);
        addSurface(content, style, mesh, zone);
        if (isVolume(data, zone)) {
            addSlices(content, style, mesh, zone);
            addIsoSurfaces(content, style, mesh, zone);
        }
    }
    addStreams(content, style.streamtraces, data);
    return content;
}

} // namespace corvane::scene
