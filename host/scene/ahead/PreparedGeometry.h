// The polygons of plots: built once, kept while there is room, and built ahead.
#pragma once

#include "host/scene/ahead/ReadAhead.h"
#include "host/scene/data/SceneStatistics.h"
#include "host/scene/data/SharedCache.h"
#include "host/scene/geometry/PlotRequests.h"

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

#include <memory>
#include <utility>

namespace corvane::scene {

/// Belongs to the thread that draws. What it builds ahead is built on a thread of its own, from
/// meshes that nothing else uses meanwhile.
class PreparedGeometry {
public:
    using Polygons = vtkSmartPointer<vtkPolyData>;
    struct Streams {
        Polygons traces;
        Polygons tubes; ///< null where lines are wanted
    };

    /// budget: bytes of polygons that are kept.
    PreparedGeometry(std::size_t budget, std::shared_ptr<SceneStatistics> statistics);

    /// What is not at hand is built from the data's meshes, which are read where they must be.
    /// Throws host::HostError.
    Polygons plot(const PlotRequest& request, const SceneDataSet& data);
    Streams streams(const StreamRequest& request, const SceneDataSet& data);

    /// Builds ahead, in place of what the same owner had wanted before, all but what needs meshes
    /// of the content that is shown.
    void prepare(const void* owner, std::shared_ptr<const SceneDataSet> data,
                 const PictureContent& next, const PictureContent& shown);
    /// Returns when nothing is being built for this owner; what waits is dropped. Needed before
    /// other content is shown.
    void makeWay(const void* owner);
    /// Returns when all has been built that was wanted.
    void wait() { m_ahead.wait(); }

    void forget(long dataSet); ///< its id: MeshId::dataSet

private:
    Polygons build(const PlotRequest& request, const SceneDataSet& data);
    Polygons trace(const StreamRequest& request, const SceneDataSet& data);
    Streams buildStreams(const StreamRequest& request, const SceneDataSet& data);
    bool hasStreams(const StreamRequest& request) const;

    using TubeKey = std::pair<StreamRecipe, double>;

    std::shared_ptr<SceneStatistics> m_statistics;
    SharedCache<Recipe, Polygons> m_plots;
    SharedCache<StreamRecipe, Polygons> m_traces;
    SharedCache<TubeKey, Polygons> m_tubes;
    ReadAhead m_ahead; ///< last, since its thread uses the others
};

} // namespace corvane::scene
