// The cached polygons of plots, which can be built ahead of time.
#pragma once

#include "host/scene/ahead/ReadAhead.h"
#include "host/scene/data/SceneStatistics.h"
#include "host/scene/data/SharedCache.h"
#include "host/scene/geometry/PlotRequests.h"

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

#include <memory>
#include <optional>
#include <utility>

namespace corvane::scene {

/// Used by the drawing thread only. Prefetched geometry is built on a worker thread, from meshes
/// that nothing else uses at that moment.
class PreparedGeometry {
public:
    using Polygons = vtkSmartPointer<vtkPolyData>;
    struct Streams {
        Polygons traces;
        Polygons tubes; ///< null where lines are wanted
    };

    /// budget: the size of the caches in bytes.
    PreparedGeometry(std::size_t budget, std::shared_ptr<SceneStatistics> statistics);

    /// From the cache, or else built from the data's meshes, which are read if necessary. Throws
    /// host::HostError.
    Polygons plot(const PlotRequest& request, const SceneDataSet& data);
    Streams streams(const StreamRequest& request, const SceneDataSet& data);

    /// Builds the geometry of next in the background, except for what needs a mesh of the content
    /// that is shown. Replaces what the same owner requested before.
    void prepare(const void* owner, std::shared_ptr<const SceneDataSet> data,
                 const PictureContent& next, const PictureContent& shown);
    /// Afterwards nothing of this owner is being built or will be. To be called before other
    /// content is shown.
    void cancel(const void* owner) { m_ahead.cancel(owner); }
    /// Waits until everything requested has been built.
    void wait() { m_ahead.wait(); }

    void forget(long dataSet); ///< removes its geometry from the caches; see MeshId::dataSet

private:
    Polygons build(const PlotRequest& request, const SceneDataSet& data);
    Polygons trace(const StreamRequest& request, const SceneDataSet& data);
    Streams buildStreams(const StreamRequest& request, const SceneDataSet& data);
    std::optional<Streams> findStreams(const StreamRequest& request);

    using TubeKey = std::pair<StreamRecipe, double>;

    std::shared_ptr<SceneStatistics> m_statistics;
    SharedCache<Recipe, Polygons> m_plots;
    SharedCache<StreamRecipe, Polygons> m_traces;
    SharedCache<TubeKey, Polygons> m_tubes;
    ReadAhead m_ahead; ///< declared last: its thread uses the members above
};

} // namespace corvane::scene
